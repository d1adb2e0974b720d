// Names and codes of the countries, provinces and states of the Americas.

/** Countries by their two-letter code: name as shown in lists and station files. Puerto Rico and the Virgin Islands
    are entered as states of the United States, as the FCC files them. */
export const countries = {
  US: 'United States', CA: 'Canada', MX: 'Mexico', BR: 'Brazil', AR: 'Argentina', CL: 'Chile', CO: 'Colombia',
  VE: 'Venezuela', PE: 'Peru', EC: 'Ecuador', BO: 'Bolivia', PY: 'Paraguay', UY: 'Uruguay', GY: 'Guyana',
  SR: 'Suriname', GF: 'French Guiana', CU: 'Cuba', DO: 'Dominican Rep', HT: 'Haiti', JM: 'Jamaica',
  TT: 'Trinidad', BS: 'Bahamas', BB: 'Barbados', GD: 'Grenada', LC: 'St. Lucia', VC: 'St. Vincent',
  AG: 'Antigua', DM: 'Dominica', KN: 'St. Kitts', GP: 'Guadeloupe', MQ: 'Martinique', AW: 'Aruba',
  AN: 'Neth Antilles', VG: 'Br Virgin Is', AI: 'Anguilla', MS: 'Montserrat', TC: 'Turks Caicos',
  KY: 'Cayman Is', BM: 'Bermuda', GL: 'Greenland', PM: 'St. Pierre', CR: 'Costa Rica', PA: 'Panama',
  NI: 'Nicaragua', HN: 'Honduras', SV: 'El Salvador', GT: 'Guatemala', BZ: 'Belize', FK: 'Falkland Is',
  BL: 'St. Barthelemy', MF: 'St. Martin',
};

/** Country codes of the city source that are entered under another country here. */
export const joinedCountries = { PR: 'US', VI: 'US', CW: 'AN', BQ: 'AN', SX: 'AN' };

/** Canadian provinces and territories by the city source's numbers. */
export const provinces = {
  '01': 'AB', '02': 'BC', '03': 'MB', '04': 'NB', '05': 'NL', '07': 'NS', '08': 'ON', '09': 'PE', '10': 'QC',
  '11': 'SK', '12': 'YT', '13': 'NT', '14': 'NU',
};

/** States of Mexico by the city source's numbers (ISO 3166-2 letters). */
export const mexicanStates = {
  '01': 'AGU', '02': 'BCN', '03': 'BCS', '04': 'CAM', '05': 'CHP', '06': 'CHH', '07': 'COA', '08': 'COL',
  '09': 'CMX', '10': 'DUR', '11': 'GUA', '12': 'GRO', '13': 'HID', '14': 'JAL', '15': 'MEX', '16': 'MIC',
  '17': 'MOR', '18': 'NAY', '19': 'NLE', '20': 'OAX', '21': 'PUE', '22': 'QUE', '23': 'ROO', '24': 'SLP',
  '25': 'SIN', '26': 'SON', '27': 'TAB', '28': 'TAM', '29': 'TLA', '30': 'VER', '31': 'YUC', '32': 'ZAC',
};

/** States of Brazil by the city source's numbers. */
export const brazilianStates = {
  '01': 'AC', '02': 'AL', '03': 'AP', '04': 'AM', '05': 'BA', '06': 'CE', '07': 'DF', '08': 'ES', '11': 'MS',
  '13': 'MA', '14': 'MT', '15': 'MG', '16': 'PA', '17': 'PB', '18': 'PR', '20': 'PI', '21': 'RJ', '22': 'RN',
  '23': 'RS', '24': 'RO', '25': 'RR', '26': 'SC', '27': 'SP', '28': 'SE', '29': 'GO', '30': 'PE', '31': 'TO',
};

/** State or province of a town, at most three letters, or "-" where none is used. */
export function stateOf(sourceCountry, adminCode) {
  switch (sourceCountry) {
    case 'US': return adminCode;
    case 'PR': case 'VI': return sourceCountry;
    case 'CA': return provinces[adminCode];
    case 'MX': return mexicanStates[adminCode];
    case 'BR': return brazilianStates[adminCode];
    default: return '-';
  }
}

/** What follows a town's name in a list: two letters in the US and Canada, the country elsewhere. */
export function regionShown(town) {
  return town.country === 'US' || town.country === 'CA' ? town.state : countries[town.country];
}
