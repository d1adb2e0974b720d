// Where the stations stand: at real towns by population, the transmitter some way outside the town.

import { distance, bearing, destination, round } from '../lib/geo.mjs';
import { channels } from './channels.mjs';

// Asked distance between stations of one channel, km: least and most of an even spread. Where a country has too many
// stations for it, the distance shrinks step by step.
const asked = { local: [75, 165], regional: [95, 230], clear: [150, 400], expanded: [500, 900] };
const dominantKm = 900;
const tries = 12, shrink = 0.85;
// Stations of one town on neighbouring channels: channels apart -> km apart at least.
const neighbours = [[1, 45], [2, 20], [3, 12]];

// States with more stations than their people alone would have: the south and southeast of Brazil.
const stateWeight = { 'BR RS': 2.2, 'BR SC': 2.2, 'BR PR': 2.2, 'BR SP': 1.7, 'BR MG': 1.5, 'BR RJ': 1.3 };

/** The towns of one country, grouped in cells of about one degree. */
class CountryTowns {
  constructor(towns) {
    const cells = new Map();
    for (const town of towns) {
      const width = 1 / Math.cos(town.latitude * Math.PI / 180);
      const key = Math.floor(town.latitude) + ' ' + Math.floor(town.longitude / width);
      if (!cells.has(key)) cells.set(key, { towns: [], population: 0 });
      const cell = cells.get(key);
      cell.towns.push(town);
      cell.population += Math.max(town.population, 500);
    }
    this.cells = [...cells.values()];
    this.grid = new Map(); // by half degrees
    for (const town of towns) {
      const key = Math.floor(town.latitude * 2) * 1000 + Math.floor(town.longitude * 2);
      if (!this.grid.has(key)) this.grid.set(key, []);
      this.grid.get(key).push(town);
    }
    this.uses = new Map();
    let total = 0;
    this.totals = this.cells.map(cell => total += cell.population ** 0.3 * cell.towns.length ** 0.8
      * (stateWeight[`${cell.towns[0].country} ${cell.towns[0].state}`] ?? 1));
    for (const cell of this.cells) {
      let sum = 0;
      cell.totals = cell.towns.map(town => sum += Math.max(town.population, 500) ** 0.75);
    }
    let sum = 0;
    this.large = [...towns].sort((a, b) => b.population - a.population).slice(0, 60);
    this.largeTotals = this.large.map(town => sum += town.population ** 0.5);
  }

  /** A town by weight; dominant stations stand at large cities. A town that has many stations is passed over more often. */
  draw(random, dominant) {
    if (dominant) return this.large[random.cumulative(this.largeTotals)];
    for (;;) {
      const cell = this.cells[random.cumulative(this.totals)];
      const town = cell.towns[random.cumulative(cell.totals)];
      const room = 1 + town.population / 60000;
      if (random.chance(room / (room + (this.uses.get(town) ?? 0)))) return town;
    }
  }

  use(town) { this.uses.set(town, (this.uses.get(town) ?? 0) + 1); }

  /** Towns near a town, in its own and the surrounding cells. */
  around(town, km) {
    if (town.near) return town.near;
    town.near = [];
    const rows = Math.ceil(km / 55);
    const reach = Math.ceil(rows / Math.cos(town.latitude * Math.PI / 180));
    const row = Math.floor(town.latitude * 2), col = Math.floor(town.longitude * 2);
    for (let r = row - rows; r <= row + rows; r++) {
      for (let c = col - reach; c <= col + reach; c++) {
        for (const other of this.grid.get(r * 1000 + c) ?? []) {
          const apart = distance(town, other);
          if (apart > 3 && apart < km) town.near.push({ other, km: apart });
        }
      }
    }
    return town.near;
  }
}

/** A transmitter site 2 to 20 km outside a town, on the way to a neighbouring town so that it stands on dry land. */
function siteAt(random, towns, town) {
  const near = towns.around(town, 60);
  if (near.length === 0) return destination(town, random.between(0, 360), random.between(0.5, 2));
  const { other, km } = random.pick(near);
  const reach = Math.min(20, 0.45 * km);
  return destination(town, bearing(town, other) + random.between(-20, 20), random.between(Math.min(2, reach), reach));
}

const rounded = site => ({ latitude: round(site.latitude, 4), longitude: round(site.longitude, 4) });

/** Gives every station a town and a site (and some a second one for the night). */
export function placeStations(random, stations, townsByCountry) {
  const countries = new Map();
  for (const [country, towns] of townsByCountry) countries.set(country, new CountryTowns(towns));
  const onChannel = new Map(channels.map(channel => [channel, []]));

  const free = (channel, site, km) => {
    for (const other of onChannel.get(channel)) if (distance(site, other) < km) return false;
    for (const [steps, apart] of neighbours) {
      for (const side of [-10 * steps, 10 * steps]) {
        for (const other of onChannel.get(channel + side) ?? []) {
          if (distance(site, other) < Math.min(apart, km / 2)) return false;
        }
      }
    }
    return true;
  };

  // The dominant stations choose first, then the band in a mixed order, so that no channel is served last.
  const order = stations.map(station => ({ station, rank: (station.dominant ? -1 : 0) + random.next() }))
    .sort((a, b) => a.rank - b.rank).map(({ station }) => station);
  for (const station of order) {
    const towns = countries.get(station.country);
    if (!towns) throw new Error(`no towns for ${station.country}`);
    const [least, most] = asked[station.kind];
    let km = station.dominant ? dominantKm : random.between(least, most);
    for (let count = 1; ; count++) {
      if (count % tries === 0) km *= shrink;
      const town = towns.draw(random, station.dominant);
      const site = rounded(siteAt(random, towns, town));
      if (!free(station.channel, site, km)) continue;
      station.town = town;
      station.site = site;
      station.nightSite = station.twoSites ? rounded(siteAt(random, towns, town)) : site;
      if (distance(site, station.nightSite) < 3) station.nightSite = site;
      towns.use(town);
      onChannel.get(station.channel).push(site);
      break;
    }
  }
}
