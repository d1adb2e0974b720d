// Reading of share/ as the checker needs it: files as lines, with what is wrong about their text.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';

/** Collects the faults found; each is "file:line: what". */
export class Faults {
  list = [];
  add(where, what) { this.list.push(`${where}: ${what}`); }
  expect(holds, where, what) { if (!holds) this.add(where, what); }
}

/** Lines of a text file whose lines all end in CR LF and hold printable ASCII only. */
export function readLines(folder, name, faults) {
  const text = readFileSync(join(folder, name), 'latin1');
  faults.expect(text.endsWith('\r\n'), name, 'does not end in CR LF');
  const lines = text.split('\r\n').slice(0, -1);
  lines.forEach((line, i) => faults.expect(/^[ -~]+$/.test(line), `${name}:${i + 1}`,
    'empty, a bare line end or not plain ASCII'));
  return lines;
}
