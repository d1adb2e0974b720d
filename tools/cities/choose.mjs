// Which towns go into the city list.

import { distance } from '../lib/geo.mjs';

export const listLimit = 3400;   // rows the program takes
export const apartKm = 8;        // no two entries nearer than this

// Listeners live mostly in the United States and Canada: these countries have a share of the list of their own,
// filled most populous first. The rest is filled by all other countries together, likewise.
const shares = { US: 1900, CA: 350, MX: 250, BR: 250 };
// Every country is in the list with at least its largest towns.
const atLeast = 3;

/** Keeps towns a fixed distance apart, by a coarse grid of half degrees. */
class Spacing {
  cells = new Map();
  key(row, col) { return row * 1000 + col; }
  fits(town) {
    const row = Math.floor(town.latitude * 2), col = Math.floor(town.longitude * 2);
    const reach = Math.ceil(apartKm / (55 * Math.cos(town.latitude * Math.PI / 180)));
    for (let r = row - 1; r <= row + 1; r++) {
      for (let c = col - reach; c <= col + reach; c++) {
        for (const other of this.cells.get(this.key(r, c)) ?? []) {
          if (distance(town, other) < apartKm + 0.05) return false;
        }
      }
    }
    return true;
  }
  add(town) {
    const key = this.key(Math.floor(town.latitude * 2), Math.floor(town.longitude * 2));
    if (!this.cells.has(key)) this.cells.set(key, []);
    this.cells.get(key).push(town);
  }
}

/** The towns of the list; the argument is ordered most populous first. */
export function chooseCities(towns) {
  const spacing = new Spacing();
  const chosen = [];
  const names = new Set(); // towns of one name in one state (or one country without states) would read alike
  const counts = new Map();
  const take = town => {
    const name = `${town.name}|${town.state}|${town.country}`;
    if (names.has(name) || !spacing.fits(town)) return;
    spacing.add(town);
    names.add(name);
    chosen.push(town);
    counts.set(town.country, (counts.get(town.country) ?? 0) + 1);
  };
  for (const town of towns) {
    if ((counts.get(town.country) ?? 0) < (shares[town.country] ?? atLeast)) take(town);
  }
  for (const town of towns) {
    if (chosen.length >= listLimit) break;
    if (!shares[town.country]) take(town);
  }
  return chosen;
}
