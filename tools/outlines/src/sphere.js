// Distances on the sphere of the map. Points are [longitude, latitude] in degrees;
// distances are in kilometres. Longitudes of the two points must be on the same turn
// (no wrap at 0 or 360 is looked for).

const radian = Math.PI / 180;

// The map's own kilometres in a degree of arc.
export const kmPerDegree = 111.44;

// Great-circle distance by haversine: good for neighbours, where an arc cosine is not.
export function distanceKm(a, b) {
  const s = Math.sin((b[1] - a[1]) * radian / 2);
  const t = Math.sin((b[0] - a[0]) * radian / 2);
  const h = s * s + Math.cos(a[1] * radian) * Math.cos(b[1] * radian) * t * t;
  return 2 * Math.asin(Math.min(1, Math.sqrt(h))) / radian * kmPerDegree;
}

// The point nearest to p on the segment a-b, which is straight in longitude and latitude,
// as { point, km, t }, t from 0 (a) to 1 (b). The plane is scaled for the latitude of p,
// so the answer is good when the segment passes near p.
export function nearestOnSegment(p, a, b) {
  const cos = Math.cos(p[1] * radian);
  const ax = (a[0] - p[0]) * cos, ay = a[1] - p[1];
  const dx = (b[0] - a[0]) * cos, dy = b[1] - a[1];
  const length2 = dx * dx + dy * dy;
  const t = length2 === 0 ? 0 : Math.max(0, Math.min(1, -(ax * dx + ay * dy) / length2));
  return {
    point: [a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1])],
    km: Math.hypot(ax + t * dx, ay + t * dy) * kmPerDegree,
    t,
  };
}

// Where the segments a-b and c-d cross, as { point, t, u }: t from 0 to 1 along a-b and
// u along c-d; null when they do not cross or are parallel.
export function crossing(a, b, c, d) {
  const rx = b[0] - a[0], ry = b[1] - a[1];
  const sx = d[0] - c[0], sy = d[1] - c[1];
  const det = rx * sy - ry * sx;
  if (det === 0) return null;
  const qx = c[0] - a[0], qy = c[1] - a[1];
  const t = (qx * sy - qy * sx) / det;
  const u = (qx * ry - qy * rx) / det;
  if (t < 0 || t > 1 || u < 0 || u > 1) return null;
  return { point: [a[0] + t * rx, a[1] + t * ry], t, u };
}

export const samePoint = (a, b) => a[0] === b[0] && a[1] === b[1];
export const isRing = line => line.length > 2 && samePoint(line[0], line[line.length - 1]);
