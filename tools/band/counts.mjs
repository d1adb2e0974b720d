// Counts the records of a folder of station files per channel, country and hours, and writes them as counts.json:
// the only thing taken from the real band. Usage: node counts.mjs <folder of station files> > counts.json

import { readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { countries } from '../cities/regions.mjs';

const codes = new Map(Object.entries(countries).map(([code, name]) => [name, code]));
// The same countries as other files spell them, cut to 13 characters.
for (const [name, code] of [['Netherlands A', 'AN'], ['British Virgi', 'VG'], ['St. Kitts and', 'KN']]) codes.set(name, code);

const folder = process.argv[2];
const table = {};
for (let channel = 530; channel <= 1700; channel += 10) {
  const perCountry = {};
  for (const line of readFileSync(join(folder, `${channel}x.dat`), 'latin1').split(/\r?\n/)) {
    if (!/^[1-9]/.test(line)) continue;
    const fields = line.split(',').map(field => field.trim());
    const code = codes.get(fields[4]);
    if (!code) throw new Error(`${channel}: country "${fields[4]}" is not known`);
    perCountry[code] ??= { D: 0, N: 0, U: 0, C: 0 };
    perCountry[code][fields[5]]++;
  }
  table[channel] = Object.fromEntries(Object.entries(perCountry).sort());
}
const rows = Object.entries(table).map(([channel, perCountry]) => `"${channel}": {` + Object.entries(perCountry)
  .map(([code, n]) => `"${code}": [${n.D}, ${n.N}, ${n.U}, ${n.C}]`).join(', ') + '}');
console.log(`{\n"columns": ["D", "N", "U", "C"],\n${rows.join(',\n')}\n}`);
