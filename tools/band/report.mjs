// Counts of what was made, printed beside the table that it follows.

import { countries } from '../cities/regions.mjs';

const columns = ['D', 'N', 'U', 'C'];

/** Records counted {channel: {country: [D, N, U, C]}}. */
export function countRecords(stations) {
  const table = {};
  for (const station of stations) {
    const row = ((table[station.channel] ??= {})[station.country] ??= [0, 0, 0, 0]);
    for (const record of station.records) row[columns.indexOf(record.hours)]++;
  }
  return table;
}

const sum = rows => rows.reduce((total, row) => total.map((n, i) => n + row[i]), [0, 0, 0, 0]);
const line = (name, made, wanted) => `${name.padEnd(16)}` + made.map((n, i) => `${n}/${wanted[i]}`.padStart(13)).join('');

/** Prints the counts per channel (below it those of each country, made) and per country, each "made/table"; returns the number of cells of the whole table
    (channel, country, hours) that differ in D, N or U. */
export function printCounts(made, wanted) {
  const head = 'made/table'.padEnd(16) + columns.map(c => c.padStart(13)).join('');
  let differing = 0;
  const names = new Set();
  console.log(head);
  for (const channel of Object.keys(wanted).filter(key => key !== 'columns')) {
    const mine = made[channel] ?? {}, theirs = wanted[channel];
    for (const code of new Set([...Object.keys(mine), ...Object.keys(theirs)])) {
      names.add(code);
      for (let i = 0; i < 3; i++) if ((mine[code]?.[i] ?? 0) !== (theirs[code]?.[i] ?? 0)) differing++;
    }
    console.log(line(channel + ' kHz', sum(Object.values(mine)), sum(Object.values(theirs))));
    console.log('  ' + Object.entries(mine).map(([code, row]) => code + ' '
      + columns.map((c, i) => row[i] ? c + row[i] : '').join('')).join(', '));
  }
  console.log(head);
  const of = (table, code) => sum(Object.values(table).map(row => row[code]).filter(Array.isArray));
  for (const code of [...names].sort((a, b) => of(wanted, b)[0] - of(wanted, a)[0] || (a < b ? -1 : 1))) {
    console.log(line(countries[code], of(made, code), of(wanted, code)));
  }
  return differing;
}
