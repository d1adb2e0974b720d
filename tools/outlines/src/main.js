// main.js PACKAGES RINGS SHARE: makes SHARE/REGION2.dat and SHARE/STATES.dat from the npm packages
// below PACKAGES and the rings that print-r-maps.R printed into the file RINGS.

import { writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { coastsAndBorders, lakeShores } from './region2.js';
import { provinceBorders, stateBorders } from './states.js';
import { joinEnds } from './joinEnds.js';
import { readRings } from './rings.js';
import { distinct, simplify } from './simplify.js';
import { subdivide } from './subdivide.js';
import { cutLong, order } from './order.js';
import { region2Notes, statesNotes } from './notes.js';
import { outlineText, rounded } from './outlineFile.js';

const toleranceKm = 0.5;
const reachKm = 4; // how far a state border's end may be from the coast or border it ends on
const longestStepKm = 9.97; // rounding to 4 decimals may add 0.01
const mostVertices = 500; // in one line of the file, so that what is off the map can be passed over

function finish(lines) {
  const pieces = lines
    .map(line => rounded(subdivide(line, longestStepKm)))
    .filter(line => line.length > 1)
    .flatMap(line => cutLong(line, mostVertices));
  return order(pieces);
}

function write(file, lines, notes) {
  writeFileSync(file, outlineText(lines, notes));
  const vertices = lines.reduce((sum, line) => sum + line.length, 0);
  console.log(`${file}: ${lines.length} lines, ${vertices} vertices`);
}

const [packages, ringsFile, share] = process.argv.slice(2);
const rings = readRings(ringsFile);

const region = distinct([
  ...coastsAndBorders(join(packages, 'world-atlas/countries-10m.json')),
  ...lakeShores(rings),
].map(line => simplify(line, toleranceKm)));
const borders = [
  ...stateBorders(join(packages, 'us-atlas/states-10m.json')),
  ...provinceBorders(rings),
].map(line => simplify(line, toleranceKm));
const states = joinEnds(borders, region, reachKm,
  ([x, y]) => console.log(`loose end at ${y.toFixed(2)} ${x.toFixed(2)}`));

write(join(share, 'REGION2.dat'), finish(region), region2Notes(toleranceKm));
write(join(share, 'STATES.dat'), finish(states), statesNotes(toleranceKm));
