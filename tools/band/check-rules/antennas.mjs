// Statistics of the directional records, from the patterns that the program will draw.

import { channelClass } from '../channels.mjs';
import { computePattern } from './pattern.mjs';

const share = (part, whole) => whole ? `${(100 * part / whole).toFixed(0)} %` : '-';

/** Tests every pattern; prints how many towers, how deep the nulls, and how many stations are directional. */
export function checkAntennas(stations, faults) {
  const towers = {}, depths = [], groups = {}, switches = { '0': 0, ' 1': 0 };
  for (const station of stations) {
    const home = station.records[0].country;
    const country = ['United States', 'Canada', 'Mexico', 'Brazil'].includes(home) ? home : 'elsewhere';
    const group = groups[`${country} ${channelClass(station.channel)}`] ??= { n: 0, night: 0, day: 0, both: 0, sites: 0 };
    group.n++;
    const directional = hours => station.records.some(r => hours.includes(r.hours) && r.count > 1);
    if (directional('NU')) group.night++;
    if (directional('DU')) group.day++;
    if (directional('NU') && directional('DU')) group.both++;
    if (station.records.some(r => r.latitude !== station.records[0].latitude)) group.sites++;
    for (const record of station.records) {
      const values = computePattern(record.towers, record.hours, record.power);
      const greatest = Math.max(...values), least = Math.min(...values);
      const rms = Math.sqrt(values.slice(0, 360).reduce((sum, v) => sum + v * v, 0) / 360);
      const circle = 2 * record.power ** 0.31622;
      faults.expect(values.every(Number.isFinite) && greatest > 0, record.where, 'pattern is not a number');
      faults.expect(rms > 0.55 * circle && rms < 1.8 * circle && greatest < 3.2 * circle, record.where,
        `pattern size: rms ${(rms / circle).toFixed(2)}, greatest ${(greatest / circle).toFixed(2)} of a circle's`);
      towers[record.count] = (towers[record.count] ?? 0) + 1;
      if (record.count === 1) continue;
      for (const tower of record.towers.slice(1)) switches[tower.switch]++;
      depths.push({ depth: 20 * Math.log10(least / greatest), greatest: greatest / rms, record });
      faults.expect(20 * Math.log10(least / greatest) < -1.5, record.where, 'an array with the pattern of a single tower');
    }
  }
  console.log('records by towers: ' + Object.entries(towers).map(([n, count]) => `${n}: ${count}`).join(', '));
  console.log(`further towers from the reference point ${switches['0']}, from the tower before ${switches[' 1']}`);
  depths.sort((a, b) => a.depth - b.depth);
  const at = part => depths[Math.floor(part * (depths.length - 1))].depth.toFixed(1);
  console.log(`deepest null below the maximum, dB: least ${at(1)}, quartiles ${at(0.75)}, ${at(0.5)}, ${at(0.25)}, greatest ${at(0)}`);
  console.log(`maximum over rms: greatest ${Math.max(...depths.map(d => d.greatest)).toFixed(2)}`);
  for (const [name, g] of Object.entries(groups).sort()) {
    if (g.night + g.day === 0) continue;
    console.log(`${name.padEnd(24)} ${String(g.n).padStart(5)} stations, directional by night ${share(g.night, g.n)}, `
      + `by day ${share(g.day, g.n)}, both ${share(g.both, g.n)}, two sites ${g.sites}`);
  }
}
