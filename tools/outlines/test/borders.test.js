// Borders between rings, and how their ends are fitted to a coast of another source.

import assert from 'node:assert/strict';
import test from 'node:test';
import { joinEnds } from '../src/joinEnds.js';
import { belongsToRegion2 } from '../src/region.js';
import { outerLines, sharedLines } from '../src/rings.js';

const square = (x, y) => ({ points: [[x, y], [x + 1, y], [x + 1, y + 1], [x, y + 1], [x, y]] });

test('four squares share a cross of four lines, and one outer side', () => {
  const squares = [square(260, 40), square(261, 40), square(260, 41), square(261, 41)];
  const shared = sharedLines(squares);
  assert.equal(shared.length, 4);
  for (const line of shared) assert.ok([line[0], line.at(-1)].some(p => `${p}` === '261,41'));
  const outer = outerLines(squares);
  assert.equal(outer.length, 1);
  assert.equal(outer[0].length, 9);
  assert.deepEqual(sharedLines([square(260, 40), square(270, 40)]), []);
});

const coast = [[260, 40], [262, 40]];
const join = (lines, loose) => joinEnds(lines, [coast], 4, loose);

test('an end over the water is cut, one short of the coast goes straight on to it', () => {
  const [cut] = join([[[261, 41], [261, 39.98]]]);
  assert.deepEqual(cut, [[261, 41], [261, 40]]);
  const [extended] = join([[[261, 40.02], [260.9, 41]]]);
  assert.equal(extended.length, 3);
  assert.ok(Math.abs(extended[0][1] - 40) < 1e-9);
  assert.ok(Math.abs(extended[0][0] - (261 + 0.02 / 0.98 * 0.1)) < 1e-9);
});

test('what follows the shore beside the coast is left out', () => {
  const [line] = join([[[261, 41], [261, 40.005], [261.3, 40.005]]]);
  assert.ok(line.every(p => p[0] < 261.02 && p[1] >= 40));
  assert.ok(Math.abs(line.at(-1)[1] - 40) < 1e-9);
  assert.deepEqual(join([[[260.5, 40.005], [261.5, 40.005]]]), []);
});

test('ends that lines share and ends far from any coast stay', () => {
  const meeting = [[[261, 41], [261, 40.01]], [[261, 40.01], [262, 41]]];
  const loose = [];
  assert.deepEqual(join(meeting, end => loose.push(end)), meeting);
  assert.deepEqual(loose.sort(), [[261, 41], [262, 41]]);
});

test('Region 2 ends between Greenland and Iceland, in the Bering Strait and in mid-ocean', () => {
  const at = (x, y) => belongsToRegion2([[x - 0.1, y], [x + 0.1, y]]);
  for (const [x, y] of [[338, 70], [189.5, 63.4], [181, 51.8], [202, 20], [251, -27], [331, -20.5]])
    assert.ok(at(x, y), `${x} ${y}`);
  for (const [x, y] of [[341.4, 65], [186, 66], [230, -25], [334, 38], [10, 50], [300, -65]])
    assert.ok(!at(x, y), `${x} ${y}`);
});
