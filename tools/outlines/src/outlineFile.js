// The text of an outline file: "latitude longitude" lines in degrees (north and east), a pen-up mark
// before each line of the map, the end mark, and notes behind it.

const decimals = 4;
const penUp = '-100 -100';
const endMark = '-2000';

// Rounded as it will stand in the file.
export function rounded(line) {
  const result = [];
  for (const [x, y] of line) {
    const point = [Number(x.toFixed(decimals)), Number(y.toFixed(decimals))];
    const before = result[result.length - 1];
    if (!before || before[0] !== point[0] || before[1] !== point[1]) result.push(point);
  }
  return result;
}

// Lines as [longitude, latitude] lists already rounded; notes are lines of text.
export function outlineText(lines, notes) {
  const text = [];
  for (const line of lines) {
    text.push(penUp);
    for (const [x, y] of line) text.push(`${y.toFixed(decimals)} ${x.toFixed(decimals)}`);
  }
  text.push(endMark, ...notes);
  return text.join('\n') + '\n';
}
