// How a place is written in a fixed width: "City  Region", the region never cut.

// Shorter names of countries, used where a town's name would not fit beside the full one.
const shortRegions = new Map([
  ['Argentina', 'Arg'], ['Bolivia', 'Bol'], ['Brazil', 'Bra'], ['Chile', 'Chi'], ['Colombia', 'Col'], ['Costa Rica', 'C.R.'],
  ['Cuba', 'Cub'], ['Dominican Rep', 'Dom Rep'], ['Ecuador', 'Ecu'], ['El Salvador', 'Salv'], ['Guatemala', 'Guat'],
  ['Honduras', 'Hond'], ['Mexico', 'Mex'], ['Neth Antilles', 'Antilles'], ['Nicaragua', 'Nic'], ['Panama', 'Pan'],
  ['Paraguay', 'Par'], ['Peru', 'Per'], ['Venezuela', 'Ven'], ['French Guiana', 'Guiana'],
]);

// Usual abbreviations of words in the names of towns.
const shortWords = [[/^Ciudad /, 'Cd. '], [/^Santiago /, 'Stgo. '], [/^Santo /, 'Sto. '], [/^Santa /, 'Sta. '], [/^San /, 'S. '],
  [/^Saint-/, 'St-'], [/^Sainte-/, 'Ste-'], [/\bGeneral\b/, 'Gral.'], [/\bPresidente\b/, 'Pdte.'], [/\bPresidencia\b/, 'Pcia.'],
  [/\bGobernador\b/, 'Gob.'], [/\bGovernador\b/, 'Gov.'], [/\bNossa Senhora\b/, 'N. Sra.'], [/\bLibertador\b/, 'Lib.'],
  [/\bFrancisco\b/, 'Fco.'], [/\bLicenciado\b/, 'Lic.'], [/\bFraccionamiento\b/, 'Fracc.']];

// Words that no cut name ends in.
const smallWords = /(?: (?:de|del|la|las|los|el|do|dos|da|das|y|e|d'\w*))+$/i;

function abbreviated(name) {
  return shortWords.reduce((text, [word, short]) => text.replace(word, short), name);
}

/** Name cut behind a word, to at most width characters; inside its first word only when that alone is too long. */
function cutBehindWord(name, width) {
  const words = name.slice(0, width + 1).replace(/[ -][^ -]*$/, '').replace(smallWords, '').trimEnd();
  return words.length <= width ? words : name.slice(0, width - 1) + '.';
}

/** "City  Region" in at most width characters: written out, else shortened by usual abbreviations, else cut. */
export function place(name, region, width) {
  const short = shortRegions.get(region) ?? region;
  for (const [city, gap, shown] of [[name, '  ', region], [name, ' ', region], [name, ' ', short],
    [abbreviated(name), ' ', region], [abbreviated(name), ' ', short]]) {
    if (city.length + gap.length + shown.length <= width) return city + gap + shown;
  }
  return cutBehindWord(name, width - region.length - 1) + ' ' + region;
}
