// The check of the finished files finds what it is there to find.

import assert from 'node:assert/strict';
import test from 'node:test';
import { checkOutline } from '../src/check.js';
import { outlineText, rounded } from '../src/outlineFile.js';

const line = rounded([[264.40001, 48.99], [264.5, 48.99], [264.50001, 48.990001], [264.6, 48.99]]);
const good = outlineText([line, [[180, 51.5], [180.05, 51.5]]], ['Notes.']);

test('a good file has no faults and is counted right', () => {
  const { lines, vertices, longestKm, faults } = checkOutline(good);
  assert.deepEqual(faults, []);
  assert.equal(lines, 2);
  assert.equal(vertices, 5);
  assert.ok(longestKm > 7 && longestKm < 8);
});

test('each fault is found', () => {
  const faulty = {
    'a step of': good.replace('264.5000', '264.4500'),
    'outside the map': good.replace('180.0000', '179.9990'),
    'the same vertex twice': good.replace('264.5000', '264.4000'),
    'a line of 1 vertices': good.replace('51.5000 180.0500\n', ''),
    'a vertex before': good.replace('-100 -100\n', ''),
    'drawn before': good.replace('-2000', '-100 -100\n51.5000 180.0500\n51.5000 180.0000\n-2000'),
    'no vertex': good.replace('48.9900 264.5000', '48.9900  264.5000'),
    'no end mark': good.replace('-2000\nNotes.\n', ''),
    'notes begin': good.replace('Notes', '# Notes'),
    'no end': good.slice(0, -1),
  };
  for (const [what, text] of Object.entries(faulty)) {
    const { faults } = checkOutline(text);
    assert.ok(faults.some(fault => fault.includes(what)), `${what}: ${faults}`);
  }
});
