// The lines of STATES.dat, before simplification: borders between states of the United States and
// between provinces and territories of Canada.

import { readTopology } from './topology.js';
import { sharedLines } from './rings.js';

// An arc that bounds two states; the coasts and national borders bound only one.
export function stateBorders(statesFile) {
  const { arcs, polygons } = readTopology(statesFile, 'states');
  const owners = arcs.map(() => new Set());
  for (const { name, rings } of polygons)
    for (const i of rings.flat()) owners[i].add(name);
  return arcs.filter((arc, i) => owners[i].size > 1 && arc.length > 1);
}

export function provinceBorders(rings) {
  return sharedLines(rings.filter(({ kind }) => kind === 'province'));
}
