// The program's pattern computation, step by step and in single precision, written a second time so that the shipped
// towers are judged by something other than what designed them.

const f = Math.fround;
const degreesPerRadian = f(57.29578);

/** Sum of two polar vectors {spacing, bearing}. */
function polarSum(a, b) {
  const r = Math.PI / 180;
  const north = a.spacing * Math.cos(a.bearing * r) + b.spacing * Math.cos(b.bearing * r);
  const east = a.spacing * Math.sin(a.bearing * r) + b.spacing * Math.sin(b.bearing * r);
  return { spacing: f(Math.hypot(north, east)), bearing: f((Math.atan2(east, north) / r + 360) % 360) };
}

/** 361 magnitudes, one for each degree, of towers {switch, field, phase, spacing, bearing}. */
export function computePattern(towers, hours, powerKW) {
  const largest = Math.max(0, ...towers.map(t => f(t.field)));
  let fields = towers.map(t => f(t.field / largest));
  const root = f(Math.sqrt(fields.reduce((sum, v) => f(sum + f(v * v)), 0)));
  const nudge = hours === 'U' ? 1.01 : hours === 'D' ? 0.99 : 1;
  fields = fields.map(v => f(f(f(f(v / root) * nudge) * f(powerKW) ** 0.31622) * 2));
  const placed = [];
  let before = { spacing: 0, bearing: 0 };
  for (const tower of towers) {
    before = tower.switch === '0' ? tower : polarSum(tower, before);
    placed.push(before);
  }
  const values = [];
  for (let azimuth = 0; azimuth <= 360; azimuth++) {
    let s = 0, c = 0;
    towers.forEach((tower, i) => {
      const psi = f(placed[i].spacing / degreesPerRadian * Math.cos(placed[i].bearing / degreesPerRadian - azimuth / degreesPerRadian)
        + tower.phase / degreesPerRadian);
      s += fields[i] * Math.sin(psi);
      c += fields[i] * Math.cos(psi);
    });
    values.push(f(Math.sqrt(s * s + c * c)));
  }
  return values;
}
