// Cuts long steps into equal ones no longer than a limit (km along the great circle). New
// vertices lie on the straight line in longitude and latitude: what follows a parallel goes on
// following it.

import { distanceKm } from './sphere.js';

export function subdivide(line, limitKm) {
  const result = [line[0]];
  for (let i = 1; i < line.length; i++) {
    const a = line[i - 1], b = line[i];
    for (let parts = Math.ceil(distanceKm(a, b) / limitKm) || 1; ; parts++) {
      const steps = [];
      for (let k = 1; k <= parts; k++)
        steps.push(k === parts ? b
          : [a[0] + (b[0] - a[0]) * k / parts, a[1] + (b[1] - a[1]) * k / parts]);
      // Equal steps in degrees are not quite equal in kilometres on a slanting line.
      if (steps.every((p, k) => distanceKm(k === 0 ? a : steps[k - 1], p) <= limitKm)) {
        result.push(...steps);
        break;
      }
    }
  }
  return result;
}
