// The city list's lines: fixed columns, sorted by name.
//   1-10 population (a help to the eye), 12-37 place, 38-46 latitude, 48-56 longitude (west positive).

import { column, rightColumn } from '../lib/text.mjs';
import { regionShown } from './regions.mjs';
import { place } from './place.mjs';

const placeWidth = 26;

const compare = (a, b) => a < b ? -1 : a > b ? 1 : 0;

/** Two towns that would read alike are told apart by the state behind the name, where there is one. */
function shownPlaces(towns) {
  const uses = new Map();
  const plain = town => place(town.name, regionShown(town), placeWidth);
  for (const town of towns) uses.set(plain(town), (uses.get(plain(town)) ?? 0) + 1);
  return towns.map(town => uses.get(plain(town)) > 1 && town.state !== '-' && town.country !== 'US' && town.country !== 'CA'
    ? place(`${town.name} ${town.state}`, regionShown(town), placeWidth) : plain(town));
}

/** Lines in the order of the list: by name, then region, then the larger first. */
export function cityLines(towns) {
  const places = shownPlaces(towns);
  const key = place => place.toUpperCase().replace(/[^A-Z0-9 ]/g, '');
  return towns.map((town, i) => ({ town, place: places[i], key: key(places[i]) }))
    .sort((a, b) => compare(a.key, b.key) || b.town.population - a.town.population)
    .map(({ town, place }) => rightColumn(town.population.toLocaleString('en-US'), 10) + ' '
      + column(place, placeWidth)
      + rightColumn(town.latitude.toFixed(4), 9) + ' '
      + rightColumn(town.longitude.toFixed(4), 9));
}
