// Writes Kestrel.lst into the folder given as the first argument.

import { writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { loadTowns } from './source.mjs';
import { chooseCities } from './choose.mjs';
import { cityLines } from './lines.mjs';
import { countries } from './regions.mjs';

const folder = process.argv[2];
const chosen = chooseCities(loadTowns());
const lines = cityLines(chosen);
writeFileSync(join(folder, 'Kestrel.lst'), lines.map(line => line + '\r\n').join(''), 'latin1');

const perCountry = new Map();
for (const town of chosen) perCountry.set(town.country, (perCountry.get(town.country) ?? 0) + 1);
console.log(`Kestrel.lst: ${lines.length} cities`);
console.log([...perCountry].sort((a, b) => b[1] - a[1] || (a[0] < b[0] ? -1 : 1))
  .map(([code, count]) => `  ${countries[code]} ${count}`).join('\n'));
