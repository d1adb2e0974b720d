// The box around points [longitude, latitude], in degrees.

export function boxOf(line) {
  const box = { west: Infinity, east: -Infinity, south: Infinity, north: -Infinity };
  for (const [x, y] of line) {
    box.west = Math.min(box.west, x);
    box.east = Math.max(box.east, x);
    box.south = Math.min(box.south, y);
    box.north = Math.max(box.north, y);
  }
  return box;
}

export function middleOf(line) {
  const { west, east, south, north } = boxOf(line);
  return [(west + east) / 2, (south + north) / 2];
}

export function boxesMeet(a, b, marginDegrees) {
  return a.west - marginDegrees <= b.east && b.west - marginDegrees <= a.east
    && a.south - marginDegrees <= b.north && b.south - marginDegrees <= a.north;
}
