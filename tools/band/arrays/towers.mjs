// From a design (positions and complex currents) to the rounded towers of a record.

import { angleDifference, round } from '../../lib/geo.mjs';
import { size, angle, divide } from './complex.mjs';

const degrees = 180 / Math.PI;
const leastRatio = 0.25, greatestRatio = 2.4;

/** Towers {field, phase, spacing, bearing} from a design, rounded as a licence states them; reference is the index of
    the tower with ratio 1 and phase 0. Null when a ratio is impractical. */
export function towersOf(design, reference) {
  const unit = design[reference].current;
  const towers = design.map(({ x, y, current }) => {
    const ratio = divide(current, unit);
    const spacing = round(Math.hypot(x, y), 1);
    return {
      field: round(size(ratio), 3),
      phase: round(angleDifference(angle(ratio), 0), 1),
      spacing,
      bearing: spacing === 0 ? 0 : round((Math.atan2(x, y) * degrees + 360) % 360, 1) % 360,
    };
  });
  return towers.every(t => t.field >= leastRatio && t.field <= greatestRatio) ? towers : null;
}

/** Index of the tower with the greatest current. */
export function strongest(design) {
  let best = 0;
  design.forEach((tower, i) => { if (size(tower.current) > size(design[best].current) + 1e-9) best = i; });
  return best;
}

/** The same towers with each position given from the tower before it (except the first), for records
    that chain their towers. Positions are summed again from the rounded steps, so that no error gathers. */
export function chained(towers) {
  const radians = Math.PI / 180;
  let x = 0, y = 0;
  return towers.map(tower => {
    const dx = tower.spacing * Math.sin(tower.bearing * radians) - x;
    const dy = tower.spacing * Math.cos(tower.bearing * radians) - y;
    const spacing = round(Math.hypot(dx, dy), 1);
    const bearing = spacing === 0 ? 0 : round((Math.atan2(dx, dy) * degrees + 360) % 360, 1) % 360;
    x += spacing * Math.sin(bearing * radians);
    y += spacing * Math.cos(bearing * radians);
    return { ...tower, spacing, bearing };
  });
}
