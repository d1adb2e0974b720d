// The single changes that can be made to a C++ source: each is {line, from, to, text}, where columns `from` to `to` of
// the line (from 0) become `text`.

/** The lines with comments and the insides of literals blanked out, columns kept. */
export function codeOnly(source) {
  let code = '';
  let state = 'code';
  for (let i = 0; i < source.length; i++) {
    const c = source[i], two = source.substr(i, 2);
    if (state === 'code') {
      if (two === '//') state = 'line';
      else if (two === '/*') state = 'block';
      else if (c === '"' || (c === "'" && !/[0-9a-fA-F]/.test(source[i - 1] ?? ''))) state = c;
      code += state === 'code' || state === c ? c : ' ';
    } else if (c === '\n') {
      if (state === 'line') state = 'code';
      code += c;
    } else if (state === 'block' && two === '*/') {
      code += '  ';
      i++;
      state = 'code';
    } else if ((state === '"' || state === "'") && c === '\\') {
      code += '  ';
      i++;
    } else if (state === c) {
      code += c;
      state = 'code';
    } else {
      code += ' ';
    }
  }
  return code.split('\n');
}

const operators = [
  [/ < /g, ' <= '], [/ <= /g, ' < '], [/ > /g, ' >= '], [/ >= /g, ' > '], [/ == /g, ' != '], [/ != /g, ' == '],
  [/ && /g, ' || '], [/ \|\| /g, ' && '], [/ \+ /g, ' - '], [/ - /g, ' + '], [/ \* /g, ' / '], [/ \/ /g, ' * '],
  [/ \+= /g, ' -= '], [/ -= /g, ' += '], [/\btrue\b/g, 'false'], [/\bfalse\b/g, 'true'],
  [/\bstd::min\b/g, 'std::max'], [/\bstd::max\b/g, 'std::min'],
];

/** A whole number becomes the next one, another one grows by a tenth; hexadecimal ones and array sizes of 0 too. */
function* numbers(code) {
  for (const match of code.matchAll(/(?<![\w.])(0x[0-9A-Fa-f]+|\d+\.\d*(?:e-?\d+)?F?|\d+)(?![\w.'])/g)) {
    const [text] = match;
    const whole = /^(0x[0-9A-Fa-f]+|\d+)$/.test(text);
    const changed = whole ? String(Number(text) + 1) : `${Number(text.replace('F', '')) * 1.1 || 1}${text.endsWith('F') ? 'F' : ''}`;
    yield [match.index, text.length, /[.e]|^\d+$/.test(changed) ? changed : changed.replace(/F?$/, '.0$&')];
  }
}

/** Whether the line is a whole statement that can be left out: a call or an assignment, no declaration. */
function isDroppable(code, before) {
  const text = code.trim();
  if (!text.endsWith(';') || !/[;{}:]\s*$|^\s*$/.test(before)) return false;
  if (/^(return|break|continue|case|default|using|namespace|template|static_assert|assert|const|constexpr|auto|struct|class|enum|goto|public|private)\b/.test(text)) return false;
  return /^[\w:.>()[\]*-]+(\(.*\)|\s*[-+*/|&]?=\s.*);$/.test(text) && balanced(text);
}

function balanced(text) {
  let depth = 0;
  for (const c of text) {
    if ('([{'.includes(c)) depth++;
    if (')]}'.includes(c) && --depth < 0) return false;
  }
  return depth === 0;
}

export function changesOf(source) {
  const changes = [];
  const lines = codeOnly(source);
  lines.forEach((code, line) => {
    if (/^\s*(#|using\b|static_assert|assert\()/.test(code) || /\b(template|operator)\b/.test(code)) return;
    const add = (from, to, text) => changes.push({ line, from, to, text });
    for (const [pattern, text] of operators)
      for (const match of code.matchAll(pattern)) add(match.index, match.index + match[0].length, text);
    for (const [from, length, text] of numbers(code)) add(from, from + length, text);
    for (const match of code.matchAll(/\b(if|while) \((?=.*\)\s*(\{|return|continue|break|$))/g))
      add(match.index + match[0].length, match.index + match[0].length, 'false && ');
    for (const match of code.matchAll(/\(([a-z]\w*), ([a-z]\w*)\)/g))
      if (match[1] !== match[2]) add(match.index, match.index + match[0].length, `(${match[2]}, ${match[1]})`);
    if (isDroppable(code, lines[line - 1] ?? '')) add(0, code.length, '');
  });
  return changes;
}

export function applied(source, { line, from, to, text }) {
  const lines = source.split('\n');
  lines[line] = lines[line].slice(0, from) + text + lines[line].slice(to);
  return lines.join('\n');
}
