// Gives every record of a station its towers.

import { bearing, distance } from '../lib/geo.mjs';
import { protections } from './protect.mjs';
import { designArray, designFromTwo } from './arrays/design.mjs';
import { chained } from './arrays/towers.mjs';

const lightSpeedKms = 299792.458;
// Towers of a directional array, by channel class: [count, weight].
const nightTowers = {
  regional: [[2, 22], [3, 33], [4, 27], [5, 6], [6, 9], [8, 1.5], [9, 0.7], [12, 0.5]],
  clear: [[2, 22], [3, 30], [4, 24], [5, 6], [6, 12], [8, 2], [9, 2], [12, 1.6]],
};
const dayTowers = [[2, 55], [3, 30], [4, 12], [6, 3]];
const southernTowers = [[2, 60], [3, 25], [4, 15]];
const chainedShare = 0.3;

/** Electrical height of the towers in degrees: masts of 45 to 130 m, kept within 60 to 225 degrees. */
function towerHeight(random, channel, power) {
  if (power >= 25 && random.chance(0.3)) return random.pick([190, 195, 180, 215, 225]);
  if (random.chance(0.35)) return 90;
  const metres = random.pick([45, 52, 58, 61, 69, 76, 84, 91, 100, 107, 120, 130]);
  const height = metres * 360 * channel / lightSpeedKms;
  return Math.min(225, Math.max(60, Math.round(height * 10) / 10));
}

const single = height => [{ relative: false, field: 1, height, phase: 0, spacing: 0, bearing: 0 }];

function finish(towers, height, chain) {
  return (chain ? chained(towers) : towers)
    .map((tower, i) => ({ ...tower, height, relative: chain && i > 0 }));
}

const townAzimuth = (station, site) => distance(site, station.town) > 0.5 ? bearing(site, station.town) : 0;

/** A new array for some hours of a station. */
function newArray(random, station, coChannel, hours) {
  const site = hours === 'N' ? station.nightSite : station.site;
  const northern = station.country === 'US' || station.country === 'CA';
  const counts = !northern ? southernTowers : hours === 'N' ? nightTowers[station.kind] : dayTowers;
  for (;;) {
    const towers = designArray(random, random.weighted(counts), protections(station, coChannel, hours), townAzimuth(station, site));
    if (towers) return towers;
  }
}

/** Fills in the towers of all records of one station; coChannel: all stations of its channel. */
export function giveAntennas(random, station, coChannel) {
  const power = Math.max(...station.records.map(r => r.power));
  const height = towerHeight(random, station.channel, power);
  const chain = random.chance(chainedShare);
  const oneSite = station.nightSite === station.site;
  const { directional } = station;
  const arrays = {};
  if (directional.U && station.records[0].hours === 'U') arrays.U = newArray(random, station, coChannel, 'N');
  if (directional.N) arrays.N = newArray(random, station, coChannel, 'N');
  if (directional.D) {
    const how = random.next();
    if (arrays.N && oneSite && how < 0.3) arrays.D = arrays.N; // one pattern, day and night
    else if (arrays.N && oneSite && how < 0.75) {
      arrays.D = designFromTwo(random, arrays.N, protections(station, coChannel, 'D'), townAzimuth(station, station.site));
    }
    arrays.D ??= newArray(random, station, coChannel, 'D');
    arrays.C = arrays.D.length > 2 && random.chance(0.5)
      ? designFromTwo(random, arrays.D, protections(station, coChannel, 'D'), townAzimuth(station, station.site)) ?? arrays.D : arrays.D;
  }
  for (const record of station.records) {
    const towers = directional[record.hours] ? arrays[record.hours] : null;
    record.towers = towers ? finish(towers, height, chain) : single(height);
    record.site = record.hours === 'N' ? station.nightSite : station.site;
  }
}
