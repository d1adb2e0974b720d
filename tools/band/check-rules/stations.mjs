// The rules of the station files, line by line and for the band as a whole.

import { distance } from '../../lib/geo.mjs';
import { channelClass } from '../channels.mjs';
import { readLines } from './files.mjs';
import { listLine, parseListLine } from './listline.mjs';

const stationForm = new RegExp([/^(\d{3,4})/, /(Q[A-Z]{3})/, /.{24}/, /.{4}/, /.{13}/, /([DNCU])/, /-?\d{1,2}(?:\.\d+)?/,
  /\d{2,3}(?:\.\d+)?/, /\d+(?:\.\d+)?,-,-/, /(\d{1,2})$/].map(part => part.source).join(', '));
const towerForm = /^(0| 1),(\d+(?:\.\d+)?),(\d+(?:\.\d+)?),(-?\d+(?:\.\d+)?),(\d+(?:\.\d+)?),(\d+(?:\.\d+)?)$/;

function readStationLine(line, where, channel, faults) {
  const match = stationForm.exec(line);
  if (!match) { faults.add(where, `not a station line: ${line}`); return null; }
  const fields = line.split(',');
  faults.expect(fields.length === 12 && !fields.includes(''), where, 'not twelve fields');
  faults.expect(fields[6].length <= 9 && fields[7].length <= 9 && fields[8].length <= 7, where, 'a number is too wide');
  const record = {
    where, channel, call: match[2], city: fields[2].trim(), state: fields[3].trim(), country: fields[4].trim(), hours: match[3],
    latitude: Number(fields[6]), longitude: Number(fields[7]), power: Number(fields[8]), count: Number(match[4]), towers: [],
  };
  faults.expect(Number(match[1]) === channel, where, 'another channel');
  faults.expect(record.city && record.state && record.country && fields[3].trimEnd().length <= 4, where, 'a name is missing or too wide');
  faults.expect(record.latitude !== 0 && record.longitude !== 0 && record.power > 0, where, 'a number is 0');
  faults.expect(Math.abs(record.latitude) <= 88 && record.longitude >= 30 && record.longitude <= 170, where, 'position outside');
  faults.expect(record.count <= 12, where, 'too many towers');
  const shown = parseListLine(listLine(fields));
  const same = shown.call === record.call && shown.city === record.city && shown.state === record.state
    && shown.country === record.country.toUpperCase() && shown.hours === record.hours && shown.latitude === record.latitude
    && shown.longitude === record.longitude && shown.power === record.power && shown.towers === record.count;
  faults.expect(same, where, `comes back from the list line as ${JSON.stringify(shown)}`);
  return record;
}

function readTowerLine(line, where, faults) {
  const match = towerForm.exec(line ?? '');
  if (!match) { faults.add(where, `not a tower line: ${line}`); return null; }
  const [field, height, phase, spacing, bearing] = match.slice(2).map(Number);
  faults.expect(field > 0 && field <= 3, where, `field ratio ${field}`);
  faults.expect(height >= 60 && height <= 225, where, `height ${height}`);
  faults.expect(Math.abs(phase) <= 180 && bearing < 360, where, 'an angle is out of range');
  return { switch: match[1], field, height, phase, spacing, bearing };
}

/** All records of one channel's file. */
export function readChannel(folder, channel, faults) {
  const name = `${channel}x.dat`;
  const lines = readLines(folder, name, faults);
  const records = [];
  for (let i = 0; i < lines.length;) {
    const record = readStationLine(lines[i], `${name}:${i + 1}`, channel, faults);
    i++;
    if (!record) continue;
    for (let k = 0; k < record.count; k++, i++) {
      const tower = readTowerLine(lines[i], `${name}:${i + 1}`, faults);
      if (tower) record.towers.push(tower);
    }
    faults.expect(record.count > 0 && record.towers[0]?.switch === '0', record.where, 'has no first tower of its own place');
    records.push(record);
  }
  return records;
}

/** Rules about stations: one call sign each, no hours twice, powers by class, sites apart. Returns the stations. */
export function checkStations(records, faults) {
  const stations = new Map();
  for (const record of records) {
    if (!stations.has(record.call)) stations.set(record.call, { call: record.call, channel: record.channel, records: [] });
    const station = stations.get(record.call);
    const first = station.records[0] ?? record;
    faults.expect(first.channel === record.channel && first.city === record.city && first.country === record.country,
      record.where, `call sign ${record.call} is used twice`);
    faults.expect(!station.records.some(r => r.hours === record.hours || r.hours === 'U' || (record.hours === 'U')),
      record.where, `${record.call} has these hours twice`);
    station.records.push(record);
    if (channelClass(record.channel) === 'local') {
      faults.expect(record.power <= 1 && record.count === 1, record.where, 'a local station of more than 1 kW or 1 tower');
    }
  }
  for (const station of stations.values()) {
    for (const record of station.records) {
      const apart = distance(station.records[0], record);
      faults.expect(apart < 45, record.where, `sites ${apart.toFixed(0)} km apart`);
    }
  }
  return [...stations.values()];
}

/** Distances in km from each station to the nearest other of its channel, ascending. */
export function nearestDistances(stations) {
  const nearest = stations.map(a => Math.min(...stations.filter(b => b !== a).map(b => distance(a.records[0], b.records[0]))));
  return nearest.sort((a, b) => a - b);
}
