// The consulting engineer: tries designs of one kind of array and keeps the one that protects the co-channel stations
// best while it serves its own town.

import { angleDifference } from '../../lib/geo.mjs';
import { fieldAt, sweep, summary, rootSumSquare } from './factor.mjs';
import { row, taperedRow, product, dogLeg, centred } from './shapes.mjs';
import { towersOf, strongest } from './towers.mjs';

/** Kinds of array by the number of towers. */
const kinds = {
  2: ['row'], 3: ['row', 'row', 'dogLeg'], 4: ['row', 'parallelogram', 'parallelogram'], 5: ['row'], 6: ['row', 'rows2', 'rows2'],
  8: ['rows2'], 9: ['rows3'], 12: ['rows3'],
};

const usualSpacings = [[80, 3], [85, 3], [90, 12], [95, 4], [100, 5], [105, 3], [110, 4], [120, 3], [135, 2], [160, 1], [180, 3]];

function spacingOf(random) {
  const spacing = random.weighted(usualSpacings);
  return random.chance(0.6) ? spacing : Math.round((spacing + random.between(-4, 4)) * 10) / 10;
}

/** Azimuth of one station to protect, the heavier the likelier. */
function protectedAzimuth(random, protections) {
  return random.weighted(protections.map(p => [p.azimuth, p.weight]));
}

/** A line's bearing: halfway between two protected azimuths, on one of them, or away from one. */
function lineBearing(random, protections) {
  const first = protectedAzimuth(random, protections);
  const how = random.next();
  if (how < 0.55) {
    const second = protectedAzimuth(random, protections);
    return Math.round((first + angleDifference(second, first) / 2 + 360) % 360);
  }
  return Math.round((first + random.between(-50, 50) + (how < 0.7 ? 180 : 0) + 360) % 360);
}

/** Nulls of a row: each towards a protected azimuth, ratios near 1 for the deepest. */
function rowNulls(random, bearing, count, protections, taper) {
  const common = Math.abs(angleDifference(protectedAzimuth(random, protections), bearing));
  return Array.from({ length: count }, () => ({
    offset: taper ? common + random.between(-18, 18)
      : Math.abs(angleDifference(protectedAzimuth(random, protections), bearing)),
    ratio: random.between(0.74, 0.97),
  }));
}

function oneRow(random, towers, protections, bearing) {
  if (towers > 4 || (towers > 2 && random.chance(0.2))) {
    return taperedRow(towers, spacingOf(random), bearing, random.between(0, 180), random.between(0.5, 0.95),
      random.between(0.9, 0.98));
  }
  return row(spacingOf(random), bearing, rowNulls(random, bearing, towers - 1, protections, random.chance(0.25)));
}

function oneDesign(random, kind, count, protections) {
  const bearing = lineBearing(random, protections);
  const across = (bearing + random.pick([-1, 1]) * random.between(45, 95) + 360) % 360;
  const other = random.chance(0.5) ? lineBearing(random, protections) : Math.round(across);
  switch (kind) {
    case 'row': return oneRow(random, count, protections, bearing);
    case 'parallelogram': {
      const apart = Math.abs(angleDifference(bearing, other)) % 180;
      if (apart < 25 || apart > 155) return null;
      return product(oneRow(random, 2, protections, bearing), oneRow(random, 2, protections, other));
    }
    case 'rows2': case 'rows3': {
      const rows = kind === 'rows2' ? 2 : 3;
      return product(oneRow(random, count / rows, protections, bearing), oneRow(random, rows, protections, Math.round(across)));
    }
    case 'dogLeg':
      return dogLeg(spacingOf(random), bearing, spacingOf(random),
        Math.round((bearing + random.pick([-1, 1]) * random.between(25, 75) + 360) % 360),
        [protectedAzimuth(random, protections), protectedAzimuth(random, protections)],
        random.between(0.04, 0.15), [random.between(0, 360), random.between(0, 360)]);
  }
}

/** How bad a pattern is: field towards the protected stations and lack of field towards the town, relative to the
    pattern's rms; infinite where the currents would fight each other. */
function badness(towers, protections, townAzimuth) {
  const { rms, greatest } = summary(sweep(towers, 5));
  const single = rootSumSquare(towers); // what one tower of the same power would give
  if (rms < 0.6 * single || rms > 1.7 * single || greatest > 2.7 * rms || greatest > 3.1 * single) return Infinity;
  let sum = 0, weights = 0;
  for (const { azimuth, weight } of protections) {
    sum += weight * (fieldAt(towers, azimuth) / rms) ** 2;
    weights += weight;
  }
  const service = fieldAt(towers, townAzimuth) / rms;
  return sum / weights + 1.2 * Math.max(0, 0.9 - service);
}

/** Towers of an array of count towers for the given [{azimuth, weight}] and azimuth of the town to serve. */
export function designArray(random, count, protections, townAzimuth, tries = 40) {
  const kind = random.pick(kinds[count]);
  const fromMiddle = count >= 4 && random.chance(0.12);
  let best = null, least = Infinity;
  for (let i = 0; i < tries || (!best && i < 40 * tries); i++) {
    const design = oneDesign(random, kind, count, protections);
    if (!design) continue;
    const towers = towersOf(fromMiddle ? centred(design) : design, count >= 5 || random.chance(0.35) ? strongest(design) : 0);
    if (!towers) continue;
    const bad = badness(towers, protections, townAzimuth);
    if (bad < least) { least = bad; best = towers; }
  }
  return best;
}

const eastOf = t => t.spacing * Math.sin(t.bearing * Math.PI / 180);
const northOf = t => t.spacing * Math.cos(t.bearing * Math.PI / 180);

/** A broader pattern of two of an array's towers, fed again: for daytime or critical hours. Null when no two of them
    stand well for it. */
export function designFromTwo(random, towers, protections, townAzimuth) {
  let best = null, least = Infinity;
  const near = towers[0];
  for (let i = 0; i < 16; i++) {
    const far = towers[1 + random.below(towers.length - 1)];
    const east = eastOf(far) - eastOf(near), north = northOf(far) - northOf(near);
    const spacing = Math.hypot(east, north);
    if (spacing > 190 || spacing < 60) continue;
    const line = Math.atan2(east, north) * 180 / Math.PI;
    const offset = Math.abs(angleDifference(protectedAzimuth(random, protections), line));
    const pair = towersOf(row(spacing, line, [{ offset, ratio: random.between(0.4, 0.75) }]), 0);
    if (!pair) continue;
    // The towers stand where they stood.
    pair.forEach((tower, k) => { ({ spacing: tower.spacing, bearing: tower.bearing } = k === 0 ? near : far); });
    const bad = badness(pair, protections, townAzimuth);
    if (bad < least) { least = bad; best = pair; }
  }
  return best;
}
