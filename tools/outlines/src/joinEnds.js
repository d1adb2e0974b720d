// Fits the loose ends of borders to the lines they should end on. Coasts and borders come from
// different generalisations, so a border that ends on its own source's coast ends a little short
// of ours, runs a little out over the water, or follows the shore of an estuary beside ours.

import { boxOf, boxesMeet } from './box.js';
import { crossing, distanceKm, kmPerDegree, nearestOnSegment } from './sphere.js';
import { subdivide } from './subdivide.js';

const key = point => point.join(' ');

// Distance (km) from a point to the nearest host line; no more than limitKm is told apart.
function distanceToHosts(point, hosts, limitKm) {
  const margin = limitKm / kmPerDegree / Math.cos(point[1] * Math.PI / 180);
  const box = boxOf([point]);
  let km = limitKm;
  for (const host of hosts)
    if (boxesMeet(box, host.box, margin))
      for (let k = 1; k < host.line.length; k++)
        km = Math.min(km, nearestOnSegment(point, host.line[k - 1], host.line[k]).km);
  return km;
}

// Leaves out the last part of a line when it lies beside a host line, and longer than a border
// that only arrives there. Null when nothing is left, the line itself when nothing is to be done.
const besideKm = 1;
const arrivesKm = 3;
function cutBeside(line, hosts) {
  let km = 0;
  for (let i = line.length - 1; i > 0; i--) {
    const steps = subdivide([line[i], line[i - 1]], besideKm / 2);
    for (let k = 1; k < steps.length; k++) {
      if (distanceToHosts(steps[k], hosts, 2 * besideKm) > besideKm)
        return km < arrivesKm ? line : [...line.slice(0, i), steps[k - 1]];
      km += distanceKm(steps[k - 1], steps[k]);
    }
  }
  return null;
}

// The nearest crossing to the loose end's inland side: the line is followed from its last vertex
// back for reachKm and cut at the innermost crossing found. Null when there is none.
function cutAtHost(line, hosts, reachKm) {
  let km = 0, cut = null;
  for (let i = line.length - 1; i > 0 && km < reachKm; i--) {
    const step = distanceKm(line[i], line[i - 1]);
    const box = boxOf([line[i - 1], line[i]]);
    for (const host of hosts) {
      if (!boxesMeet(box, host.box, 0)) continue;
      for (let k = 1; k < host.line.length; k++) {
        const hit = crossing(line[i], line[i - 1], host.line[k - 1], host.line[k]);
        if (hit && km + hit.t * step <= reachKm
            && (!cut || km + hit.t * step > cut.km))
          cut = { km: km + hit.t * step, keep: i, point: hit.point };
      }
    }
    km += step;
  }
  return cut && [...line.slice(0, cut.keep), cut.point];
}

// Goes on straight to the next host line when one is near ahead, else to the nearest point of
// any within reachKm. Null when none is near.
function extendToHost(line, hosts, reachKm) {
  const end = line[line.length - 1], before = line[line.length - 2];
  const margin = reachKm / kmPerDegree / Math.cos(end[1] * Math.PI / 180);
  const stretch = margin / Math.hypot(end[0] - before[0], end[1] - before[1]);
  const ahead = [end[0] + (end[0] - before[0]) * stretch, end[1] + (end[1] - before[1]) * stretch];
  let nearest = { km: reachKm }, hitAhead = { km: Infinity };
  for (const host of hosts) {
    if (!boxesMeet(boxOf([end]), host.box, margin)) continue;
    for (let k = 1; k < host.line.length; k++) {
      const near = nearestOnSegment(end, host.line[k - 1], host.line[k]);
      if (near.km < nearest.km) nearest = near;
      const hit = crossing(end, ahead, host.line[k - 1], host.line[k]);
      const km = hit ? distanceKm(end, hit.point) : Infinity;
      if (km < hitAhead.km) hitAhead = { km, point: hit.point };
    }
  }
  if (!nearest.point) return null;
  const goal = hitAhead.km <= Math.min(reachKm, 2 * nearest.km) ? hitAhead : nearest;
  return goal.km === 0 ? line : [...line, goal.point];
}

// Lines with their loose ends (shared with no other line) cut or drawn out to the host lines,
// where these are within reachKm along the line or from its end. A line that lies beside hosts
// all along is left out. Ends that no host is near to stay as they are and are handed to onLoose.
export function joinEnds(lines, hostLines, reachKm, onLoose = () => {}) {
  const ends = new Map();
  for (const line of lines)
    for (const end of [line[0], line[line.length - 1]])
      ends.set(key(end), (ends.get(key(end)) ?? 0) + 1);
  const hosts = hostLines.map(line => ({ line, box: boxOf(line) }));
  const fitEnd = line => {
    if (ends.get(key(line[line.length - 1])) !== 1) return line;
    const apart = cutBeside(line, hosts);
    if (!apart) return null;
    const fitted = (apart === line ? cutAtHost(line, hosts, reachKm) : null)
      ?? extendToHost(apart, hosts, reachKm);
    if (!fitted) onLoose(line[line.length - 1]);
    return fitted ?? line;
  };
  return lines
    .map(fitEnd)
    .map(line => line && fitEnd([...line].reverse())?.reverse())
    .filter(Boolean);
}
