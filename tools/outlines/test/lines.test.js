// What simplifying, cutting and ordering must not do to a line. Run: node --test tools/outlines/test/*.test.js

import assert from 'node:assert/strict';
import test from 'node:test';
import { cutLong, order } from '../src/order.js';
import { distinct, simplify } from '../src/simplify.js';
import { distanceKm, nearestOnSegment } from '../src/sphere.js';
import { subdivide } from '../src/subdivide.js';

const distanceToLine = (p, line) =>
  Math.min(...line.slice(1).map((b, i) => nearestOnSegment(p, line[i], b).km));

// A wavy coast at 60 N, where a degree of longitude is half one of latitude.
const coast = Array.from({ length: 2000 }, (_, i) =>
  [250 + i / 400, 60 + 0.05 * Math.sin(i / 15) + 0.01 * Math.cos(i / 2)]);

test('every vertex left out lies within the tolerance of the line that stays', () => {
  for (const km of [0.5, 3]) {
    const line = simplify(coast, km);
    assert.ok(line.length < coast.length / 2);
    assert.deepEqual([line[0], line.at(-1)], [coast[0], coast.at(-1)]);
    for (const p of coast) assert.ok(distanceToLine(p, line) <= km + 0.01);
  }
});

test('a ring keeps an inside, a ring without one becomes a line', () => {
  const islet = [[290, 10], [290.01, 10.0001], [290.02, 10], [290.01, 9.9999], [290, 10]];
  const kept = simplify(islet, 5);
  assert.equal(kept.length, 4);
  assert.deepEqual(kept[0], kept.at(-1));
  assert.deepEqual(simplify([[290, 10], [290.02, 10], [290, 10]], 0.5), [[290, 10], [290.02, 10]]);
  assert.equal(distinct([kept, [...kept].reverse(), islet]).length, 2);
});

test('steps are cut to the limit and a parallel stays a parallel', () => {
  const border = subdivide([[237, 49], [264.8, 49]], 10);
  assert.ok(border.every(p => p[1] === 49));
  const slanting = subdivide([[200, 20], [260, 80], [260.001, 80]], 10);
  for (const line of [border, slanting])
    for (let i = 1; i < line.length; i++) assert.ok(distanceKm(line[i - 1], line[i]) <= 10);
  assert.ok(border.length < distanceKm([237, 49], [264.8, 49]) / 10 * 1.01 + 2);
  assert.deepEqual(slanting.at(-1), [260.001, 80]);
});

test('pieces of a long line join up again, and the order is not that of the source', () => {
  const pieces = cutLong(coast, 300);
  assert.ok(pieces.every(piece => piece.length <= 300 && piece.length > 1));
  assert.deepEqual(pieces.flatMap((piece, i) => (i === 0 ? piece : piece.slice(1))), coast);
  for (let i = 1; i < pieces.length; i++) assert.deepEqual(pieces[i][0], pieces[i - 1].at(-1));
  const lines = [...pieces, [[280, -30], [281, -31]], [[200, 20], [201, 20]]];
  assert.deepEqual(order([...lines].reverse()), order(lines));
});
