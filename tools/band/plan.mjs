// What stations there are: per channel and country, with their hours, powers and which hours are directional.

import { channels, channelClass, dominantStations } from './channels.mjs';
import { dayPower, nightPower, criticalPower, unlimitedPower } from './powers.mjs';

// Share of the stations that are directional at night, by channel class and country.
const nightShare = {
  clear: { US: 0.42, CA: 0.6, MX: 0.04, BR: 0.07 },
  regional: { US: 0.33, CA: 0.62, MX: 0.05, BR: 0.07 },
};
const elsewhereShare = 0.02;
const dayToo = 0.45;         // of those directional at night, by day too
const dayOnlyShare = 0.07;   // of the others, in the US and Canada, directional by day alone
const criticalShare = 0.06;  // stations on the clear channels of the US with a critical-hours record
const twoSitesShare = 0.08;  // of those directional at night, with a site of their own by night

/** Hours of the stations that make up a country's record counts [D, N, U] on one channel. */
function hoursOf([day, night, unlimited]) {
  const both = Math.min(day, night);
  return [...Array(both).fill('DN'), ...Array(unlimited).fill('U'), ...Array(day - both).fill('D'), ...Array(night - both).fill('N')];
}

function planStation(random, channel, country, hours, dominant) {
  const kind = channelClass(channel);
  const station = { channel, kind, country, dominant, records: [], directional: {}, twoSites: false };
  const share = (nightShare[kind]?.[country] ?? elsewhereShare) * (kind === 'local' || kind === 'expanded' ? 0 : 1);
  const northern = country === 'US' || country === 'CA';
  const nightDirectional = !dominant && hours !== 'D' && random.chance(share);
  const dayDirectional = !dominant && share > 0 && (nightDirectional ? random.chance(dayToo)
    : hours !== 'U' && hours !== 'N' && northern && random.chance(hours === 'D' ? 1.5 * dayOnlyShare : dayOnlyShare));
  station.directional = { D: dayDirectional, N: nightDirectional, U: nightDirectional, C: dayDirectional };
  if (hours === 'U') {
    station.records.push({ hours: 'U', power: dominant ? 50 : unlimitedPower(random, kind, country, nightDirectional) });
    return station;
  }
  const day = dominant ? 50 : dayPower(random, kind, country, nightDirectional || dayDirectional);
  if (hours !== 'N') station.records.push({ hours: 'D', power: day });
  if (hours !== 'D') station.records.push({ hours: 'N', power: dominant ? 50 : nightPower(random, kind, country, day, nightDirectional) });
  if (hours !== 'N' && country === 'US' && kind === 'clear' && !dominant && day >= 1 && random.chance(criticalShare)) {
    station.records.push({ hours: 'C', power: criticalPower(random, day) });
  }
  station.twoSites = hours === 'DN' && northern && nightDirectional && random.chance(twoSitesShare);
  return station;
}

/** All stations of the band, channel by channel, without places. */
export function planBand(random, counts) {
  const stations = [];
  for (const channel of channels) {
    for (const [country, numbers] of Object.entries(counts[channel] ?? {})) {
      let dominantLeft = dominantStations(channel, country);
      for (const hours of hoursOf(numbers)) {
        const dominant = dominantLeft > 0 && (hours === 'DN' || hours === 'U');
        if (dominant) dominantLeft--;
        stations.push(planStation(random, channel, country, hours, dominant));
      }
    }
  }
  return stations;
}
