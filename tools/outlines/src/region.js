// Which land belongs to ITU Region 2: the Radio Regulations, article 5, lines B (east) and
// C (west), without Antarctica. Corners are [degrees east, degrees north]; the arcs of the
// lines are drawn straight in longitude and latitude, which is near enough to tell islands apart,
// and line C is followed on this side of the date line only.

import { boxOf, middleOf } from './box.js';

const corners = [
  [350, 90], [350, 72], [331.4, 62.1], [320, 50], [340, -10], [340, -60],
  [240, -60], [240, 10], [190, 10], [180, 26], [180, 59], [191, 65.5], [191, 90],
];

function inside([x, y]) {
  let odd = false;
  for (let i = 0, j = corners.length - 1; i < corners.length; j = i++) {
    const [ax, ay] = corners[i], [bx, by] = corners[j];
    if ((ay > y) !== (by > y) && x < (bx - ax) * (y - ay) / (by - ay) + ax) odd = !odd;
  }
  return odd;
}

// True when the middle of the line's bounding box lies in Region 2. A line that crosses the
// meridian of Greenwich (0 to 360 degrees) never belongs.
export function belongsToRegion2(line) {
  const { west, east } = boxOf(line);
  return east - west < 180 && inside(middleOf(line));
}
