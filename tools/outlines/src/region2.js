// The lines of REGION2.dat, before simplification: coasts, national borders and lake shores.

import { readTopology } from './topology.js';
import { outerLines } from './rings.js';
import { belongsToRegion2 } from './region.js';

// Every arc that bounds land of Region 2, once: a border between two countries is one arc.
export function coastsAndBorders(countriesFile) {
  const { arcs, polygons } = readTopology(countriesFile, 'countries');
  const used = new Set();
  for (const { rings } of polygons)
    if (belongsToRegion2(rings[0].flatMap(i => arcs[i])))
      for (const i of rings.flat()) used.add(i);
  return [...used].map(i => arcs[i]).filter(arc => arc.length > 1);
}

// The cut between two lakes that the source keeps apart in the middle of a river is no shore.
export function lakeShores(rings) {
  return outerLines(rings.filter(({ kind, points }) => kind === 'lake' && belongsToRegion2(points)));
}
