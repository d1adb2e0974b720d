// The text of station records: one station line and its tower lines, in the widths of docs/formats/station-files.md.

import { column } from '../lib/text.mjs';
import { countries } from '../cities/regions.mjs';

/** A number as short as it goes. */
export function number(value, decimals) {
  return String(Number(value.toFixed(decimals)));
}

function atMost(text, width) {
  if (text.length > width) throw new Error(`"${text}" is wider than ${width}`);
  return text;
}

export function stationLine(station, record) {
  return [
    station.channel,
    ' ' + atMost(station.call, 7),
    ' ' + column(station.town.name.toUpperCase(), 24),
    ' ' + column(station.town.state, 4),
    ' ' + column(countries[station.country], 13),
    ' ' + record.hours,
    ' ' + atMost(number(record.site.latitude, 4), 8),
    ' ' + atMost(number(record.site.longitude, 4), 8),
    ' ' + atMost(number(record.power, 4), 6),
    '-', '-',
    ' ' + record.towers.length,
  ].join(',');
}

/** A tower whose place is given from the tower before it has the switch " 1", any other "0". */
export function towerLine(tower) {
  return [
    tower.relative ? ' 1' : '0', number(tower.field, 3), number(tower.height, 1), number(tower.phase, 1),
    number(tower.spacing, 1), number(tower.bearing, 1),
  ].join(',');
}

const hoursOrder = 'DNCU';

export function recordLines(station) {
  return [...station.records].sort((a, b) => hoursOrder.indexOf(a.hours) - hoursOrder.indexOf(b.hours))
    .flatMap(record => [stationLine(station, record), ...record.towers.map(towerLine)]);
}
