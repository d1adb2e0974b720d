// Rows of the city source that are no towns of their own, whose population is evidently wrong, or whose name is unusual.

// Districts of a city, second rows for one town, and rows with a population that belongs to something larger.
const rows = new Set([
  'Ironville|KY|US', 'Meads|KY|US', 'Ahwatukee Foothills|AZ|US', 'Deer Valley|AZ|US',
  'Alief|TX|US', 'Valencia|CA|US', 'Enchanted Hills|NM|US', 'East Hampton|VA|US', 'North Stamford|CT|US',
  'Metairie Terrace|LA|US', 'West Gulfport|MS|US', 'West Coon Rapids|MN|US', 'East Concord|NH|US',
  'Hot Springs National Park|AR|US', 'Greater Northdale|FL|US', 'LaPorte|IN|US', 'South Chicago|IL|US',
  'Jamaica Plain|MA|US', 'Upper Alton|IL|US', 'Flagami|FL|US', 'Minnetonka Mills|MN|US', 'South Old Bridge|NJ|US',
  'South Laurel|MD|US', 'West Elkridge|MD|US', 'Saginaw Township North|MI|US', 'Wasco|IL|US', 'Hanover|MD|US',
  'Alhambra|AZ|US', 'Picnic Point-North Lynnwood|WA|US',
  'Scarborough|ON|CA', 'North York|ON|CA', 'Etobicoke|ON|CA', 'York|ON|CA', 'East York|ON|CA',
  'Nepean|ON|CA', 'Kanata|ON|CA', 'Norfolk County|ON|CA', 'Ladner|BC|CA',
  'East Chattanooga|TN|US', 'North Peoria|IL|US', 'East Independence|MO|US', 'Portsmouth Heights|VA|US', 'West Albany|NY|US',
  'East Norwalk|CT|US', 'South Suffolk|VA|US', 'West Lynchburg|VA|US', 'Framingham Center|MA|US', 'South Vineland|NJ|US',
  'North Chicopee|MA|US', 'North La Crosse|WI|US', 'South Peabody|MA|US', 'City of Sammamish|WA|US', 'West Torrington|CT|US',
  'East Florence|AL|US', 'Derry Village|NH|US', 'West Scarborough|ME|US', 'Barstow Heights|CA|US', 'Weirton Heights|WV|US',
  'Wallingford Center|CT|US', 'Hopatcong Hills|NJ|US', 'East Pensacola Heights|FL|US', 'Vincentown|NJ|US',
  'Mansfield City|CT|US', 'Greater Napanee|ON|CA', 'Fallingbrook|PE|CA', 'Eagle River|AK|US', "Lower Prince's Quarter|-|AN",
  'San Isidro|-|PE', 'Picsi|-|PE', 'Imperial|-|PE', 'Mucumpiz|-|VE', 'San Vicente de Moravia|-|CR',
  'Arroyo Naranjo|-|CU', 'San Miguel del Padron|-|CU', 'Cerro|-|CU', 'Guanabacoa|-|CU', 'Regla|-|CU',
  'Santo Domingo Este|-|DO', 'Santo Domingo Oeste|-|DO', 'Rio de Teapa|TAB|MX', 'Cadereyta|NLE|MX',
]);

// Names as listeners know them.
const names = new Map([
  ['Lexington-Fayette|KY|US', 'Lexington'], ['City of Milford|CT|US', 'Milford'], ['West Bloomfield Township|MI|US', 'West Bloomfield'],
  ['Greater Sudbury|ON|CA', 'Sudbury'], ['Quebec|QC|CA', 'Quebec City'], ['Salaberry-de-Valleyfield|QC|CA', 'Valleyfield'],
  ['Saint Croix|VI|US', 'Christiansted'], ['Saint-Laurent-du-Maroni|-|GF', 'Saint-Laurent'],
  ['Panama|-|PA', 'Panama City'],
  ['Okap|-|HT', 'Cap-Haitien'], ['Tigwav|-|HT', 'Petit-Goave'], ['Girardot City|-|CO', 'Girardot'],
  ['Juarez|CHH|MX', 'Ciudad Juarez'], ['Tuxtla|CHP|MX', 'Tuxtla Gutierrez'], ['Leon de los Aldama|GUA|MX', 'Leon'],
  ['Santiago de Queretaro|QUE|MX', 'Queretaro'], ['Victoria de Durango|DUR|MX', 'Durango'], ['Xalapa de Enriquez|VER|MX', 'Xalapa'],
  ['Acapulco de Juarez|GRO|MX', 'Acapulco'],
  ['San Fernando del Valle de Catamarca|-|AR', 'Catamarca'], ['San Ramon de la Nueva Oran|-|AR', 'Oran'],
  ['Santiago de los Caballeros|-|DO', 'Santiago'], ['San Cristobal de las Casas|CHP|MX', 'San Cristobal'],
  ['Puerto Francisco de Orellana|-|EC', 'El Coca'],
]);

// The boroughs of New York City: every row of the state between these parallels and meridians.
function inNewYorkCity({ latitude, longitude }) {
  return latitude > 40.49 && latitude < 40.905 && longitude > 73.74 && longitude < 74.3;
}

const keyOf = town => `${town.name}|${town.state}|${town.country}`;

/** Whether a row {name, state, country, latitude, longitude} is left out. */
export function excluded(town) {
  if (town.country === 'MX' && town.state === 'CMX') return town.name !== 'Mexico City'; // boroughs of the capital
  if (town.country === 'US' && town.state === 'NY' && inNewYorkCity(town)) return town.name !== 'New York City';
  return rows.has(keyOf(town));
}

/** The name to show for a row. */
export function knownName(town) {
  return names.get(keyOf(town)) ?? town.name.replace(/^Heroica /, '');
}
