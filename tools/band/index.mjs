// The call-sign index: one line per station and site, the most powerful stations, sorted by call sign.
//   1-8 call, 9-13 channel in kHz, 15-39 place, 40-53 greatest power and hours, 54-62 latitude, 64-72 longitude.

import { column, rightColumn } from '../lib/text.mjs';
import { place } from '../cities/place.mjs';
import { regionShown } from '../cities/regions.mjs';
import { number } from './records.mjs';

export const indexLimit = 9000;

function entriesOf(station) {
  const entries = [];
  for (const record of station.records) {
    let entry = entries.find(e => e.site === record.site);
    if (!entry) entries.push(entry = { station, site: record.site, power: 0, hours: '' });
    entry.power = Math.max(entry.power, record.power);
    entry.hours += record.hours;
  }
  return entries;
}

const north = country => country === 'US' || country === 'CA' ? 0 : 1;
const compare = (a, b) => a < b ? -1 : a > b ? 1 : 0;

/** Index entries chosen: the most powerful first, at equal power those of the United States and Canada first. */
export function chooseEntries(stations) {
  return stations.flatMap(entriesOf)
    .filter(({ site }) => Math.abs(site.latitude) <= 88 && site.longitude >= 30 && site.longitude <= 170)
    .sort((a, b) => b.power - a.power || north(a.station.country) - north(b.station.country)
      || compare(a.station.call, b.station.call))
    .slice(0, indexLimit)
    .sort((a, b) => compare(a.station.call, b.station.call) || b.power - a.power);
}

export function indexLine({ station, site, power, hours }) {
  const ordered = [...'DNCU'].filter(letter => hours.includes(letter)).join('');
  return column(station.call, 8) + rightColumn(String(station.channel), 5) + ' '
    + column(place(station.town.name, regionShown(station.town), 25), 25)
    + column(rightColumn(number(power, 4), 7) + ' kW ' + ordered, 14)
    + rightColumn(site.latitude.toFixed(4), 9) + ' '
    + rightColumn(site.longitude.toFixed(4), 9);
}
