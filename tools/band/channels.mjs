// The classes of the medium-wave channels (47 CFR 73.25 to 73.27 and 73.30), which set powers and distances.

const local = new Set([1230, 1240, 1340, 1400, 1450, 1490]);
// Channels of 47 CFR 73.25: dominant (class A) stations of the United States, Canada, Mexico and others.
const clear = new Set([
  540, 640, 650, 660, 670, 680, 690, 700, 710, 720, 730, 740, 750, 760, 770, 780, 800, 810, 820, 830, 840, 850,
  860, 870, 880, 890, 900, 940, 990, 1000, 1010, 1020, 1030, 1040, 1050, 1060, 1070, 1080, 1090, 1100, 1110,
  1120, 1130, 1140, 1160, 1170, 1180, 1190, 1200, 1210, 1220, 1500, 1510, 1520, 1530, 1540, 1550, 1560, 1570, 1580,
]);
// Clear channels on which the dominant stations lie outside the United States.
const foreignClear = new Set([
  540, 690, 730, 740, 800, 860, 900, 940, 990, 1010, 1050, 1220, 1540, 1550, 1570, 1580,
]);

export const firstChannel = 530, lastChannel = 1700;

/** Channels 530, 540, ... 1700. */
export const channels = Array.from({ length: (lastChannel - firstChannel) / 10 + 1 }, (_, i) => firstChannel + 10 * i);

/** 'local', 'clear', 'expanded' (1610 to 1700, and 530) or 'regional'. */
export function channelClass(channel) {
  if (local.has(channel)) return 'local';
  if (clear.has(channel)) return 'clear';
  return channel > 1600 || channel < 540 ? 'expanded' : 'regional';
}

/** How many dominant stations of 50 kW a country has on a clear channel. */
export function dominantStations(channel, country) {
  if (channelClass(channel) !== 'clear') return 0;
  if (country === 'US') return foreignClear.has(channel) ? 0 : 1 + (channel % 40 === 0 ? 1 : 0);
  return foreignClear.has(channel) && country === 'CA' ? 1 : 0;
}
