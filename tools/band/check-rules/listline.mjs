// The station lookup's list line, built as the program builds it and cut again at the program's fixed positions.

/** List line of a station line's twelve fields as they stand in the file. */
export function listLine(fields) {
  const [, call, city, state, country, hours, latitude, longitude, power, , , towers] = fields;
  let line = '';
  for (const [piece, width] of [[call.toUpperCase(), 8], [city.toUpperCase(), 29], [state.toUpperCase(), 34],
    [country.slice(0, 17).toUpperCase(), 52], [hours.toUpperCase(), 56], [latitude, 68], [longitude, 80], [power, 87]]) {
    line = (line + piece).padEnd(width);
  }
  return line + towers;
}

/** What the program reads back from a list line. */
export function parseListLine(line) {
  const cut = (start, length) => line.slice(start - 1, start - 1 + length).trim();
  return {
    call: cut(1, 9), city: cut(10, 24), state: cut(34, 4), country: cut(40, 14), hours: cut(53, 4),
    latitude: Number(cut(57, 9)), longitude: Number(cut(69, 9)), power: Number(cut(81, 8)), towers: Number(cut(88, 4)),
  };
}
