// Makes the demonstration band in the folder given as the first argument: 530x.dat ... 1700x.dat, StationsCall.DAT
// and Stations.txt. The same every time: all choices come from one seed.

import { readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { Random } from '../lib/random.mjs';
import { loadTowns } from '../cities/source.mjs';
import { channels } from './channels.mjs';
import { planBand } from './plan.mjs';
import { placeStations } from './sites.mjs';
import { giveAntennas } from './antennas.mjs';
import { recordLines } from './records.mjs';
import { chooseEntries, indexLine } from './index.mjs';
import { callSign } from './calls.mjs';
import { countRecords, printCounts } from './report.mjs';

const seed = 'Kestrel demonstration band 1';
// The date is part of the data, not of the day the tool runs.
const notice = 'Demonstration stations, not real ones, 1 November 2026';

const folder = process.argv[2];
const counts = JSON.parse(readFileSync(new URL('counts.json', import.meta.url)));

const townsByCountry = new Map();
for (const town of loadTowns()) {
  if (!townsByCountry.has(town.country)) townsByCountry.set(town.country, []);
  townsByCountry.get(town.country).push(town);
}

const stations = planBand(new Random(seed + ' plan'), counts);
placeStations(new Random(seed + ' sites'), stations, townsByCountry);
stations.forEach((station, i) => { station.call = callSign(i); });
for (const channel of channels) {
  const coChannel = stations.filter(station => station.channel === channel);
  // A generator for each station: a change to one array leaves the others as they are.
  for (const station of coChannel) giveAntennas(new Random(`${seed} ${station.call}`), station, coChannel);
}

const write = (name, lines) => writeFileSync(join(folder, name), lines.map(line => line + '\r\n').join(''), 'latin1');
for (const channel of channels) {
  write(`${channel}x.dat`, stations.filter(station => station.channel === channel)
    .sort((a, b) => a.call < b.call ? -1 : 1).flatMap(recordLines));
}
const entries = chooseEntries(stations);
write('StationsCall.DAT', entries.map(indexLine));
write('Stations.txt', [notice]);

const differing = printCounts(countRecords(stations), counts);
console.log(`${stations.length} stations, ${stations.reduce((n, s) => n + s.records.length, 0)} records, `
  + `${entries.length} call-sign entries, ${differing} counts differ from the table`);
