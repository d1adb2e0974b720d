// Plain-ASCII text in fixed columns.

const apart = new Map([['\u2019', "'"], ['\u2018', "'"], ['\u02bb', "'"], ['\u00d8', 'O'], ['\u00f8', 'o'],
  ['\u00c6', 'AE'], ['\u00e6', 'ae'], ['\u00df', 'ss'], ['\u00d0', 'D'], ['\u00f0', 'd'], ['\u0142', 'l']]);

/** Text in plain ASCII: accents dropped, other letters spelled out. Throws where a character has no spelling. */
export function toAscii(text) {
  const plain = [...text.normalize('NFD').replace(/[\u0300-\u036f]/g, '')]
    .map(c => apart.get(c) ?? c).join('');
  if (/[^ -~]/.test(plain)) throw new Error(`no plain spelling for "${text}"`);
  return plain;
}

/** Text cut or blank-padded at its end to exactly width characters. */
export function column(text, width) {
  return text.slice(0, width).padEnd(width);
}

/** Text blank-padded in front to exactly width characters; throws when it is longer. */
export function rightColumn(text, width) {
  if (text.length > width) throw new Error(`"${text}" is wider than ${width}`);
  return text.padStart(width);
}
