// Douglas-Peucker: a line with fewer vertices that stays within a tolerance of the old one.
// Straight means straight in longitude and latitude, as in the sources: a border along a
// parallel stays on the parallel.

import { distanceKm, isRing, nearestOnSegment } from './sphere.js';

// The index between first and last of the vertex farthest from the chord, and its distance (km).
function farthest(line, first, last) {
  let index = -1, km = -1;
  for (let i = first + 1; i < last; i++) {
    const d = nearestOnSegment(line[i], line[first], line[last]).km;
    if (d > km) { km = d; index = i; }
  }
  return { index, km };
}

function markKept(line, first, last, toleranceKm, keep) {
  const stack = [[first, last]];
  while (stack.length > 0) {
    const [from, to] = stack.pop();
    const { index, km } = farthest(line, from, to);
    if (km <= toleranceKm) continue;
    keep[index] = true;
    stack.push([from, index], [index, to]);
  }
}

// A ring is cut at the vertex farthest from its first one. It keeps an inside: an island thinner
// than the tolerance has the vertex farthest from that line as its third. Only a ring that never
// had an inside becomes a line with two ends.
function simplifyRing(ring, toleranceKm) {
  const last = ring.length - 1;
  let opposite = 1;
  for (let i = 2; i < last; i++)
    if (distanceKm(ring[0], ring[i]) > distanceKm(ring[0], ring[opposite])) opposite = i;
  const keep = new Array(ring.length).fill(false);
  keep[0] = keep[opposite] = keep[last] = true;
  markKept(ring, 0, opposite, toleranceKm, keep);
  markKept(ring, opposite, last, toleranceKm, keep);
  if (keep.filter(Boolean).length === 3) {
    const one = farthest(ring, 0, opposite), other = farthest(ring, opposite, last);
    const third = one.km >= other.km ? one : other;
    if (third.km < 1e-3) return [ring[0], ring[opposite]];
    keep[third.index] = true;
  }
  return ring.filter((_, i) => keep[i]);
}

// Ends are kept; the line handed in stays as it was.
export function simplify(line, toleranceKm) {
  if (isRing(line)) return simplifyRing(line, toleranceKm);
  const keep = new Array(line.length).fill(false);
  keep[0] = keep[line.length - 1] = true;
  markKept(line, 0, line.length - 1, toleranceKm, keep);
  return line.filter((_, i) => keep[i]);
}

// Lines without their repetitions, in either direction: the two shores of a spit become the same
// line when they are simplified.
export function distinct(lines) {
  const seen = new Map();
  for (const line of lines) {
    const ways = [line.join(' '), [...line].reverse().join(' ')].sort();
    if (!seen.has(ways[0])) seen.set(ways[0], line);
  }
  return [...seen.values()];
}
