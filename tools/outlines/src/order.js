// Puts lines into an order in which neighbours on the map are neighbours in the file: by the
// place of their middle on a Hilbert curve, then by their first vertices, so that the order
// never depends on that of the sources.

import { middleOf } from './box.js';

const bits = 10; // of the curve's grid: 1024 by 1024 cells

function hilbertIndex(x, y) {
  let index = 0;
  for (let s = 1 << (bits - 1); s > 0; s >>= 1) {
    const rx = (x & s) > 0 ? 1 : 0, ry = (y & s) > 0 ? 1 : 0;
    index += s * s * ((3 * rx) ^ ry);
    if (ry === 0) {
      if (rx === 1) { x = s * 2 - 1 - (x & (s * 2 - 1)); y = s * 2 - 1 - (y & (s * 2 - 1)); }
      [x, y] = [y, x];
    }
    x &= s - 1;
    y &= s - 1;
  }
  return index;
}

function place(line) {
  const cells = (1 << bits) - 1;
  const [x, y] = middleOf(line);
  return hilbertIndex(Math.floor((x - 180) / 180 * cells), Math.floor((y + 90) / 180 * cells));
}

export function order(lines) {
  return lines
    .map(line => ({ line, place: place(line), text: line.slice(0, 3).flat().join(' ') }))
    .sort((a, b) => a.place - b.place || (a.text < b.text ? -1 : a.text > b.text ? 1 : 0))
    .map(entry => entry.line);
}

// Pieces of at most so many vertices, each beginning where the one before ends.
export function cutLong(line, most) {
  const pieces = [];
  const count = Math.ceil((line.length - 1) / (most - 1));
  for (let i = 0; i < count; i++) {
    const from = Math.round((line.length - 1) * i / count);
    const to = Math.round((line.length - 1) * (i + 1) / count);
    pieces.push(line.slice(from, to + 1));
  }
  return pieces;
}
