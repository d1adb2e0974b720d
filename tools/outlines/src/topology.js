// Reads a TopoJSON file: every arc once, as a list of [longitude, latitude], longitudes
// in degrees east from 0 to 360; and which arcs bound which polygon.

import { readFileSync } from 'node:fs';

const eastward = longitude => (longitude < 0 ? longitude + 360 : longitude);

function decodeArc(arc, { scale, translate }) {
  let x = 0, y = 0;
  const points = [];
  for (const [dx, dy] of arc) {
    x += dx;
    y += dy;
    const point = [eastward(x * scale[0] + translate[0]), y * scale[1] + translate[1]];
    const before = points[points.length - 1];
    if (!before || before[0] !== point[0] || before[1] !== point[1]) points.push(point);
  }
  return points;
}

// { arcs, polygons }: polygons as { name, rings }, a ring being the indices of its arcs.
// A negative index (an arc run backwards) is turned into the arc's own.
export function readTopology(file, objectName) {
  const topology = JSON.parse(readFileSync(file, 'utf8'));
  const polygons = [];
  for (const geometry of topology.objects[objectName].geometries) {
    const parts = geometry.type === 'Polygon' ? [geometry.arcs]
      : geometry.type === 'MultiPolygon' ? geometry.arcs : [];
    for (const part of parts)
      polygons.push({
        name: geometry.properties.name,
        rings: part.map(ring => ring.map(i => (i < 0 ? ~i : i))),
      });
  }
  return { arcs: topology.arcs.map(arc => decodeArc(arc, topology.transform)), polygons };
}
