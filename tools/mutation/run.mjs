// Makes changes one after the other, builds, runs the tests and tells what became of each.

import { execFileSync, spawnSync } from 'node:child_process';
import { existsSync, mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { availableParallelism } from 'node:os';
import { dirname, join, relative } from 'node:path';
import { fileURLToPath } from 'node:url';
import { Random } from '../lib/random.mjs';
import { applied, changesOf } from './changes.mjs';

const [seed, count, ...rooms] = process.argv.slice(2);
if (!seed || !(Number(count) > 0)) {
  console.error('usage: tools/mutate SEED NUMBER [ROOM...]');
  process.exit(2);
}
const root = dirname(dirname(dirname(fileURLToPath(import.meta.url))));
const work = join(root, 'build', 'mutate');
const copy = join(work, 'copy');
const tree = join(work, 'tree');

// Without sanitizers, which would take three times as long; the walk of the monkey and the runs under the comma
// locale repeat the others and are left out.
const leftOut = '_comma$|^monkey$|^package$';
const secondsAllowed = 120;

function run(program, args, options = {}) {
  return spawnSync(program, args, { encoding: 'utf8', maxBuffer: 1 << 28, ...options });
}

function build() {
  return run('cmake', ['--build', tree]).status === 0;
}

/** The name of the first test that fails, or nothing. The room's own tests come first. */
function failingTest(room) {
  for (const choice of [['-R', `^${room}$`], ['-E', `${leftOut}|^${room}$`]]) {
    const { stdout } = run('ctest', ['--test-dir', tree, '--stop-on-failure', '--timeout', String(secondsAllowed),
      '-j', String(availableParallelism()), ...choice]);
    const failed = stdout.match(/\*\*\*(?:Failed|Timeout|Exception)/) && stdout.match(/Test +#\d+: (\S+) .*\*\*\*/);
    if (failed) return failed[1];
  }
  return null;
}

function sources() {
  const chosen = rooms.length ? rooms : readdirSync(join(copy, 'src'));
  return chosen.flatMap(room => readdirSync(join(copy, 'src', room), { recursive: true })
    .filter(name => name.endsWith('.cpp'))
    .map(name => ({ room, path: join(copy, 'src', room, name) })));
}

rmSync(copy, { recursive: true, force: true });
mkdirSync(copy, { recursive: true });
execFileSync('sh', ['-c', `git -C "$0" archive HEAD | tar -x -C "$1"`, root, copy]);
if (!existsSync(join(tree, 'build.ninja')))
  run('cmake', ['-S', copy, '-B', tree, '-G', 'Ninja', '-DCMAKE_BUILD_TYPE=Debug', '-DCMAKE_CXX_FLAGS_DEBUG=-O0',
    '-DKESTREL_TESTS=ON'], { stdio: 'inherit' });
if (!build() || failingTest('core')) {
  console.error('The unchanged tree does not build, or its tests fail.');
  process.exit(2);
}

const places = sources().flatMap(({ room, path }) =>
  changesOf(readFileSync(path, 'utf8')).map(change => ({ room, path, change })));
const random = new Random(`mutate ${seed}`);
const totals = new Map();
let made = 0;
while (made < Number(count) && places.length) {
  const { room, path, change } = places.splice(random.below(places.length), 1)[0];
  const source = readFileSync(path, 'utf8');
  writeFileSync(path, applied(source, change));
  const builds = build();
  const catcher = builds ? failingTest(room) : null;
  writeFileSync(path, source);
  if (!builds) continue; // no change that the compiler lets through
  made++;
  const total = totals.get(room) ?? [0, 0];
  totals.set(room, [total[0] + (catcher ? 1 : 0), total[1] + 1]);
  const line = source.split('\n')[change.line];
  const what = change.to - change.from === line.length && !change.text
    ? `without: ${line.trim()}`
    : `${line.trim()}   [${line.slice(change.from, change.to).trim()} -> ${change.text.trim()}]`;
  console.log(`${catcher ? 'caught by ' + catcher : 'SURVIVED'}  ${relative(copy, path)}:${change.line + 1}: ${what}`);
}
build();
for (const [room, [caught, all]] of [...totals].sort()) console.log(`${room}: ${caught} of ${all} caught`);
