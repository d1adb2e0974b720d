// Reads back what the tools wrote into share/ and tests it; prints statistics and every fault, and fails on a fault.

import { readFileSync, readdirSync, statSync } from 'node:fs';
import { join } from 'node:path';
import { channels, channelClass } from './channels.mjs';
import { countries } from '../cities/regions.mjs';
import { Faults } from './check-rules/files.mjs';
import { readChannel, checkStations, nearestDistances } from './check-rules/stations.mjs';
import { checkAntennas } from './check-rules/antennas.mjs';
import { checkCallIndex, checkCityList, checkNotice } from './check-rules/lists.mjs';

const folder = process.argv[2];
const faults = new Faults();

const records = channels.flatMap(channel => readChannel(folder, channel, faults));
const stations = checkStations(records, faults);
console.log(`${stations.length} stations, ${records.length} records, ${new Set(records.map(r => r.country)).size} countries`);

const counts = JSON.parse(readFileSync(new URL('counts.json', import.meta.url)));
const made = new Map();
for (const { channel, country, hours } of records) {
  const key = `${channel} ${country} ${hours}`;
  made.set(key, (made.get(key) ?? 0) + 1);
}
for (const channel of channels) {
  for (const [code, row] of Object.entries(counts[channel])) {
    ['D', 'N', 'U'].forEach((hours, i) => {
      const mine = made.get(`${channel} ${countries[code]} ${hours}`) ?? 0;
      faults.expect(mine === row[i], `${channel}x.dat`, `${countries[code]} ${hours}: ${mine} records, ${row[i]} in the table`);
    });
  }
}

for (const kind of ['local', 'regional', 'clear', 'expanded']) {
  const all = channels.filter(channel => channelClass(channel) === kind)
    .flatMap(channel => nearestDistances(stations.filter(s => s.channel === channel))).sort((a, b) => a - b);
  const at = part => all[Math.floor(part * (all.length - 1))].toFixed(0);
  console.log(`nearest of the channel, ${kind}, km: least ${at(0)}, 5 % ${at(0.05)}, 25 % ${at(0.25)}, `
    + `median ${at(0.5)}, 75 % ${at(0.75)}`);
  faults.expect(all[0] > 15, kind, `two stations of a channel ${all[0].toFixed(1)} km apart`);
}

checkAntennas(stations, faults);
const { cities, nearest } = checkCityList(folder, faults);
console.log(`${cities.length} cities, the nearest two ${nearest.toFixed(2)} km apart`);
for (const place of ['Plano  TX', 'New York City  NY', 'Toronto  ON', 'Sao Paulo  Brazil', 'Bogota  Colombia',
  'Mexico City  Mexico', 'San Juan  PR', 'Anchorage  AK', 'Honolulu  HI']) {
  faults.expect(cities.some(city => city.place === place), 'Kestrel.lst', `${place} is missing`);
}
const index = checkCallIndex(folder, stations, faults);
console.log(`${index.entries} call-sign entries, the least powerful ${index.least} kW`);
checkNotice(folder, faults);

const bytes = readdirSync(folder).reduce((sum, name) => sum + statSync(join(folder, name)).size, 0);
console.log(`share: ${readdirSync(folder).length} files, ${bytes} bytes`);
faults.expect(bytes < 8e6, 'share', 'is larger than 8 MB');

for (const fault of faults.list.slice(0, 60)) console.log(fault);
console.log(faults.list.length === 0 ? 'no faults' : `${faults.list.length} faults`);
process.exitCode = faults.list.length ? 1 : 0;
