// Reads what print-r-maps.R printed, and finds the lines between and around the areas.

import { readFileSync } from 'node:fs';

// [{ kind, name, points }], points as [longitude, latitude], longitudes in degrees east from 0 to 360.
export function readRings(file) {
  const rings = [];
  for (const line of readFileSync(file, 'utf8').split('\n')) {
    if (line === '') continue;
    const [, kind, name] = line.match(/^([a-z]+) (.*)$/) ?? [];
    if (kind) {
      rings.push({ kind, name, points: [] });
      continue;
    }
    const [x, y] = line.split(' ').map(Number);
    rings[rings.length - 1].points.push([x < 0 ? x + 360 : x, y]);
  }
  return rings;
}

const key = point => point.join(' ');

// Every edge of the rings once, with the number of rings it stands in.
function edgesOf(rings) {
  const edges = new Map();
  for (const { points } of rings)
    for (let i = 1; i < points.length; i++) {
      const ends = [points[i - 1], points[i]];
      const name = ends.map(key).sort().join(' ');
      const edge = edges.get(name) ?? { ends, count: 0, used: false };
      edge.count++;
      edges.set(name, edge);
    }
  return [...edges.values()];
}

// Edges joined into lines that end where three or more meet or none goes on.
function joined(edges) {
  const at = new Map();
  for (const edge of edges)
    for (const end of edge.ends) {
      if (!at.has(key(end))) at.set(key(end), []);
      at.get(key(end)).push(edge);
    }
  const lines = [];
  const follow = (edge, from) => {
    const line = [from];
    while (edge) {
      edge.used = true;
      const to = key(edge.ends[0]) === key(line[line.length - 1]) ? edge.ends[1] : edge.ends[0];
      line.push(to);
      const here = at.get(key(to));
      edge = here.length === 2 ? here.find(e => !e.used) : undefined;
    }
    lines.push(line);
  };
  for (const [, here] of at)
    if (here.length !== 2)
      for (const edge of here)
        if (!edge.used) follow(edge, edge.ends.find(end => at.get(key(end)) === here));
  for (const edge of edges) if (!edge.used) follow(edge, edge.ends[0]);
  return lines;
}

// The borders between neighbours: the edges that stand in two rings.
export const sharedLines = rings => joined(edgesOf(rings).filter(edge => edge.count > 1));

// The outer side of areas that may touch: the edges that stand in one ring only.
export const outerLines = rings => joined(edgesOf(rings).filter(edge => edge.count === 1));
