// The horizontal pattern of an array of vertical towers (47 CFR 73.150, without the vertical factor):
//   E(az) = | sum of F exp(j (phase + S cos(az - bearing))) |
// A tower here is {field, phase, spacing, bearing}: relative field, and angles in (electrical) degrees, the position
// from the array's reference point.

const radians = Math.PI / 180;

/** Field at one azimuth (degrees true), in the units of the towers' fields. */
export function fieldAt(towers, azimuth) {
  let re = 0, im = 0;
  for (const t of towers) {
    const angle = (t.phase + t.spacing * Math.cos((azimuth - t.bearing) * radians)) * radians;
    re += t.field * Math.cos(angle);
    im += t.field * Math.sin(angle);
  }
  return Math.hypot(re, im);
}

/** Fields at 0, step, 2 step ... below 360 degrees. */
export function sweep(towers, step = 1) {
  const fields = [];
  for (let azimuth = 0; azimuth < 360; azimuth += step) fields.push(fieldAt(towers, azimuth));
  return fields;
}

/** {rms, greatest, least} of a pattern. */
export function summary(fields) {
  const rms = Math.sqrt(fields.reduce((sum, e) => sum + e * e, 0) / fields.length);
  return { rms, greatest: Math.max(...fields), least: Math.min(...fields) };
}

/** Root of the sum of the squares of the towers' fields. */
export function rootSumSquare(towers) {
  return Math.sqrt(towers.reduce((sum, t) => sum + t.field * t.field, 0));
}
