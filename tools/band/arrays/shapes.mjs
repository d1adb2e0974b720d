// Array designs. Each returns towers {x, y, current}: the position in electrical degrees (x east, y north) and the
// complex current, or null when the currents come out impractical. A null is set by choosing the current so that the
// towers' fields cancel (or nearly: "ratio" below 1 fills the null) in the wanted direction.

import { polar, add, subtract, multiply, divide, size } from './complex.mjs';

const radians = Math.PI / 180;
const along = (spacing, bearing) => ({ x: spacing * Math.sin(bearing * radians), y: spacing * Math.cos(bearing * radians) });
/** Path phase of a position towards an azimuth, degrees. */
const path = (p, azimuth) => p.x * Math.sin(azimuth * radians) + p.y * Math.cos(azimuth * radians);

/** Current of the second tower of a pair along a line: null "offset" degrees off the line's bearing, on both sides. */
function pairCurrent(spacing, offset, ratio) {
  return polar(ratio, 180 - spacing * Math.cos(offset * radians));
}

/** Currents of a row times a pair (1, second) at the same spacing: a row with one tower more. */
function timesPair(currents, second) {
  const next = Array.from({ length: currents.length + 1 }, () => [0, 0]);
  currents.forEach((current, i) => {
    next[i] = add(next[i], current);
    next[i + 1] = add(next[i + 1], multiply(current, second));
  });
  return next;
}

/** A row of towers at even spacing: the product of one pair for each {offset, ratio}, so one more tower than nulls.
    One null makes a pair (cardioid, figure of eight), equal nulls a binomial row. */
export function row(spacing, bearing, nulls) {
  let currents = [[1, 0]];
  for (const { offset, ratio } of nulls) {
    currents = timesPair(currents, pairCurrent(spacing, offset, ratio));
  }
  return currents.map((current, i) => ({ ...along(i * spacing, bearing), current }));
}

/** A row of count towers with its beam "offset" degrees off the line; taper 1 feeds all towers alike, 0 makes a
    binomial row, between them the side lobes shrink as the beam broadens. */
export function taperedRow(count, spacing, bearing, offset, taper, ratio) {
  const progress = -spacing * Math.cos(offset * radians); // phase from tower to tower
  let currents = [[1, 0]];
  for (let k = 1; k < count; k++) {
    currents = timesPair(currents, polar(ratio, progress + taper * (180 - 360 * k / count)));
  }
  return currents.map((current, i) => ({ ...along(i * spacing, bearing), current }));
}

/** The product of two arrays: a copy of the first at every tower of the second. Two pairs make a parallelogram,
    a row and a pair two parallel rows. Fields multiply and phases add. */
export function product(first, second) {
  return second.flatMap(b => first.map(a => ({ x: a.x + b.x, y: a.y + b.y, current: multiply(a.current, b.current) })));
}

/** The same array seen from the middle of its towers: the reference point need not be a tower. */
export function centred(design) {
  const x = design.reduce((sum, t) => sum + t.x, 0) / design.length;
  const y = design.reduce((sum, t) => sum + t.y, 0) / design.length;
  return design.map(t => ({ ...t, x: t.x - x, y: t.y - y }));
}

/** Three towers not in line: the second at (s1, b1) from the first, the third at (s2, b2) from the second; nulls
    towards two azimuths, filled to about "fill" of the first tower's field. */
export function dogLeg(s1, b1, s2, b2, azimuths, fill, fillPhases) {
  const p2 = along(s1, b1);
  const step = along(s2, b2);
  const p3 = { x: p2.x + step.x, y: p2.y + step.y };
  // 1 + c2 exp(j path2) + c3 exp(j path3) = fill, at both azimuths: two linear equations.
  const [a, b] = azimuths;
  const a2 = polar(1, path(p2, a)), a3 = polar(1, path(p3, a));
  const b2e = polar(1, path(p2, b)), b3 = polar(1, path(p3, b));
  const ra = subtract(polar(fill, fillPhases[0]), [1, 0]);
  const rb = subtract(polar(fill, fillPhases[1]), [1, 0]);
  const determinant = subtract(multiply(a2, b3), multiply(a3, b2e));
  if (size(determinant) < 0.3) return null;
  const c2 = divide(subtract(multiply(ra, b3), multiply(a3, rb)), determinant);
  const c3 = divide(subtract(multiply(a2, rb), multiply(ra, b2e)), determinant);
  return [{ x: 0, y: 0, current: [1, 0] }, { ...p2, current: c2 }, { ...p3, current: c3 }];
}
