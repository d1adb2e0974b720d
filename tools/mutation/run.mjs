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

function builds(...targets) {
  return run('cmake', ['--build', tree, ...targets.flatMap(target => ['--target', target])]).status === 0;
}

/** The name of the first of the chosen tests that fails, or nothing. */
function failing(...choice) {
  const { stdout } = run('ctest', ['--test-dir', tree, '--stop-on-failure', '--timeout', String(secondsAllowed),
    '-j', String(availableParallelism()), ...choice]);
  return stdout.match(/Test +#\d+: (\S+) .*\*\*\*/)?.[1] ?? null;
}

/** What became of a change: the test that caught it, 'survived', or nothing when it does not compile. */
function outcome(room) {
  const ownTests = existsSync(join(copy, 'tests', room)) ? [`${room}_test`] : [];
  if (ownTests.length) {
    if (!builds(...ownTests)) return null;
    const own = failing('-R', `^${room}$`);
    if (own) return own;
  }
  return builds() ? failing('-E', `${leftOut}|^${room}$`) ?? 'survived' : null;
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
    '-DKESTREL_TESTS=ON', '--compile-no-warning-as-error'], { stdio: 'inherit' });
if (!builds() || failing('-E', leftOut)) {
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
  const became = outcome(room);
  writeFileSync(path, source);
  if (!became) continue;
  made++;
  const caught = became !== 'survived';
  const [caughtBefore, madeBefore] = totals.get(room) ?? [0, 0];
  totals.set(room, [caughtBefore + (caught ? 1 : 0), madeBefore + 1]);
  const line = source.split('\n')[change.line];
  const what = change.to - change.from === line.length && !change.text
    ? `without: ${line.trim()}`
    : `${line.trim()}   [${line.slice(change.from, change.to).trim()} -> ${change.text.trim()}]`;
  console.log(`${caught ? 'caught by ' + became : 'SURVIVED'}  ${relative(copy, path)}:${change.line + 1}: ${what}`);
}
for (const [room, [caught, all]] of [...totals].sort()) console.log(`${room}: ${caught} of ${all} caught`);
