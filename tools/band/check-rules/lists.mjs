// The rules of the city list, the call-sign index and the notice.

import { distance } from '../../lib/geo.mjs';
import { readLines } from './files.mjs';

const number = text => /^ *-?\d{1,3}\.\d{4}$/.test(text) ? Number(text) : NaN;

function position(line, latitudeFrom, longitudeFrom) {
  const cut = from => number(line.slice(from - 1, from + 8));
  return { latitude: cut(latitudeFrom), longitude: cut(longitudeFrom) };
}

const inside = ({ latitude, longitude }) => Math.abs(latitude) <= 88 && longitude >= 30 && longitude <= 170;

export function checkCityList(folder, faults) {
  const name = 'Kestrel.lst';
  const lines = readLines(folder, name, faults);
  faults.expect(lines.length <= 3400, name, `${lines.length} entries`);
  const cities = lines.map((line, i) => {
    const where = `${name}:${i + 1}`;
    const city = { where, place: line.slice(11, 37).trimEnd(), ...position(line, 38, 48) };
    faults.expect(line.length === 56 && line[46] === ' ' && line[10] === ' ', where, 'columns are shifted');
    faults.expect(inside(city), where, 'position outside, or not a number');
    faults.expect(/^[A-Z'].* ([A-Z]{2}|[A-Z][A-Za-z. ]+)$/.test(city.place), where, `place "${city.place}"`);
    return city;
  });
  const seen = new Set();
  for (const { where, place } of cities) {
    faults.expect(!seen.has(place), where, `"${place}" stands twice`);
    seen.add(place);
  }
  let nearest = Infinity;
  const ordered = [...cities].sort((a, b) => a.latitude - b.latitude);
  for (let i = 0; i < ordered.length; i++) {
    for (let k = i + 1; k < ordered.length && ordered[k].latitude - ordered[i].latitude < 0.1; k++) {
      const km = distance(ordered[i], ordered[k]);
      nearest = Math.min(nearest, km);
      faults.expect(km >= 8, ordered[k].where, `${km.toFixed(2)} km from ${ordered[i].place}`);
    }
  }
  return { cities, nearest };
}

export function checkCallIndex(folder, stations, faults) {
  const name = 'StationsCall.DAT';
  const lines = readLines(folder, name, faults);
  faults.expect(lines.length <= 9000, name, `${lines.length} entries`);
  const byCall = new Map(stations.map(station => [station.call, station]));
  const listed = new Set();
  let least = Infinity, before = '';
  lines.forEach((line, i) => {
    const where = `${name}:${i + 1}`;
    const call = line.slice(0, 8).trim();
    const place = position(line, 54, 64);
    faults.expect(line.length === 72 && line[62] === ' ' && line[13] === ' ' && line[39] === ' ', where, 'columns are shifted');
    faults.expect(inside(place), where, 'position outside, or not a number');
    faults.expect(call >= before, where, 'not sorted');
    before = call;
    const here = (byCall.get(call)?.records ?? []).filter(r => r.latitude === place.latitude && r.longitude === place.longitude);
    faults.expect(here.length > 0, where, `${call} has no site there`);
    faults.expect(!listed.has(call + line.slice(53)), where, 'stands twice');
    listed.add(call + line.slice(53));
    least = Math.min(least, Math.max(0, ...here.map(r => r.power)));
  });
  // No site left out is more powerful than the least powerful one listed.
  for (const station of stations) {
    for (const record of station.records) {
      const key = record.call + record.latitude.toFixed(4).padStart(9) + ' ' + record.longitude.toFixed(4).padStart(9);
      faults.expect(listed.has(key) || record.power <= least, record.where, 'is missing in the call-sign index');
    }
  }
  return { entries: lines.length, least };
}

export function checkNotice(folder, faults) {
  const lines = readLines(folder, 'Stations.txt', faults);
  const form = /^Demonstration stations, not real ones, \d{1,2} [A-Z][a-z]+ \d{4}$/;
  faults.expect(lines.length === 1 && form.test(lines[0]), 'Stations.txt', 'is not the one line');
}
