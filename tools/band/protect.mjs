// Which azimuths a station's pattern must protect: those of the nearest and strongest co-channel stations.

import { distance, bearing, angleDifference } from '../lib/geo.mjs';

const mostAzimuths = 6;
const sameWithin = 12; // degrees: nearer azimuths are protected together

/** [{azimuth, weight}], heaviest first; hours 'N' (skywave, far) or 'D' (groundwave, near). Never empty. */
export function protections(station, coChannel, hours) {
  const site = hours === 'N' ? station.nightSite : station.site;
  const [least, most] = hours === 'N' ? [60, 2600] : [40, 700];
  const reach = hours === 'N' ? 600 : 200;
  const found = [];
  for (const other of coChannel) {
    if (other === station) continue;
    const theirs = hours === 'N' ? other.nightSite : other.site;
    const km = distance(site, theirs);
    if (km < least || km > most) continue;
    const record = other.records.find(r => r.hours === hours || r.hours === 'U');
    if (!record) continue;
    const weight = record.power ** 0.4 * (other.dominant ? 4 : 1) / (0.3 + (km / reach) ** 1.3);
    const azimuth = bearing(site, theirs);
    const near = found.find(f => Math.abs(angleDifference(f.azimuth, azimuth)) < sameWithin);
    if (near) near.weight += weight;
    else found.push({ azimuth, weight });
  }
  found.sort((a, b) => b.weight - a.weight);
  return found.length ? found.slice(0, mostAzimuths) : [{ azimuth: 0, weight: 1 }];
}
