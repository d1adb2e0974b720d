// Great-circle geometry on a sphere of 6371 km. Positions are {latitude, longitude} in degrees,
// north and WEST positive; bearings in degrees clockwise from true north.

const radians = Math.PI / 180;
export const earthRadiusKm = 6371;

/** Distance in km (haversine, so that short distances keep their digits). */
export function distance(a, b) {
  const sinLat = Math.sin((b.latitude - a.latitude) * radians / 2);
  const sinLon = Math.sin((b.longitude - a.longitude) * radians / 2);
  const h = sinLat * sinLat
    + Math.cos(a.latitude * radians) * Math.cos(b.latitude * radians) * sinLon * sinLon;
  return 2 * earthRadiusKm * Math.asin(Math.min(1, Math.sqrt(h)));
}

/** Bearing from a to b, 0 to 360. */
export function bearing(a, b) {
  const dLon = (a.longitude - b.longitude) * radians; // west positive: east is the smaller longitude
  const y = Math.sin(dLon) * Math.cos(b.latitude * radians);
  const x = Math.cos(a.latitude * radians) * Math.sin(b.latitude * radians)
    - Math.sin(a.latitude * radians) * Math.cos(b.latitude * radians) * Math.cos(dLon);
  return (Math.atan2(y, x) / radians + 360) % 360;
}

/** The place a given distance (km, short against the earth's radius) away on a bearing. */
export function destination(from, azimuth, km) {
  const latitude = from.latitude + km / 111.195 * Math.cos(azimuth * radians);
  const longitude = from.longitude
    - km / 111.195 * Math.sin(azimuth * radians) / Math.cos(from.latitude * radians);
  return { latitude, longitude };
}

/** Signed difference a - b of two bearings, -180 to 180. */
export function angleDifference(a, b) {
  return ((a - b) % 360 + 540) % 360 - 180;
}

/** Value rounded to a number of decimals, never minus zero. */
export function round(value, decimals) {
  const scale = 10 ** decimals;
  return Math.round(value * scale) / scale + 0;
}
