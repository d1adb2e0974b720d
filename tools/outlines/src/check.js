// check.js FILE...: reads outline files as a program would and says what is wrong with them.
// Exit code 1 when anything is.

import { readFileSync } from 'node:fs';
import { pathToFileURL } from 'node:url';
import { distanceKm, samePoint } from './sphere.js';

const longestStepKm = 10;
const shape = /^-?\d{1,2}\.\d{4} \d{3}\.\d{4}$/;

// { lines, vertices, longestKm, faults } of a file's text; a fault is "line number: what".
export function checkOutline(text) {
  const result = { lines: 0, vertices: 0, longestKm: 0, faults: [] };
  const fault = (number, what) => result.faults.push(`${number}: ${what}`);
  const segments = new Set();
  let before = null, length = 0, ended = false;
  const endLine = number => {
    if (result.lines > 0 && length < 2) fault(number, `a line of ${length} vertices`);
  };
  const rows = text.split('\n');
  if (rows.pop() !== '') fault(rows.length, 'the last line has no end');
  rows.forEach((row, index) => {
    const number = index + 1;
    if (ended) {
      if (!/^[A-Za-z]/.test(row)) fault(number, 'notes begin with a letter');
    } else if (row === '-2000') {
      endLine(number);
      ended = true;
    } else if (row === '-100 -100') {
      endLine(number);
      result.lines++;
      length = 0;
      before = null;
    } else if (!shape.test(row)) {
      fault(number, `no vertex: ${row}`);
    } else {
      const [y, x] = row.split(' ').map(Number);
      const point = [x, y];
      if (result.lines === 0) fault(number, 'a vertex before the first pen-up mark');
      if (x < 180 || x > 360 || Math.abs(y) > 90) fault(number, `outside the map: ${row}`);
      if (before) {
        const km = distanceKm(before, point);
        const segment = [before, point].map(String).sort().join(' ');
        result.longestKm = Math.max(result.longestKm, km);
        if (samePoint(before, point)) fault(number, 'the same vertex twice');
        if (km > longestStepKm) fault(number, `a step of ${km.toFixed(2)} km`);
        if (segments.has(segment)) fault(number, 'a segment that was drawn before');
        segments.add(segment);
      }
      before = point;
      length++;
      result.vertices++;
    }
  });
  if (!ended) fault(rows.length, 'no end mark');
  return result;
}

function main(files) {
  for (const file of files) {
    const { lines, vertices, longestKm, faults } = checkOutline(readFileSync(file, 'utf8'));
    console.log(`${file}: ${lines} lines, ${vertices} vertices, longest step ${longestKm.toFixed(3)} km`);
    for (const what of faults) console.log(`${file}:${what}`);
    if (faults.length > 0) process.exitCode = 1;
  }
}

if (import.meta.url === pathToFileURL(process.argv[1]).href) main(process.argv.slice(2));
