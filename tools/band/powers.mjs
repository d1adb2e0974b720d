// Transmitter powers in kW, by channel class, country and hours. The weights follow what is usual in each country.

// Daytime power: [kW, weight].
const day = {
  localNorth: [[1, 93], [0.5, 2], [0.25, 3], [0.7, 1], [0.95, 1], [0.8, 1]],
  localSouth: [[1, 70], [0.5, 12], [0.25, 14], [0.3, 3], [0.8, 2]],
  regionalUS: [[5, 46], [1, 30], [2.5, 7], [10, 6], [2, 3], [1.5, 3], [3, 3], [4, 2]],
  regionalCA: [[10, 62], [5, 14], [1, 18], [2.5, 4]],
  regionalMX: [[1, 38], [5, 23], [10, 14], [2.5, 8], [2, 4], [3, 3], [4, 2], [1.5, 2], [0.5, 5]],
  regionalBR: [[1, 44], [5, 28], [10, 18], [2.5, 5], [2, 2], [7.5, 2]],
  regionalXX: [[1, 45], [5, 17], [10, 17], [3, 5], [2, 4], [0.5, 4], [7, 1], [8, 1]],
  clearUS: [[1, 23], [5, 15], [10, 14], [0.25, 9], [50, 10], [2.5, 5], [0.5, 5], [25, 2], [15, 1], [2, 1]],
  clearCA: [[10, 52], [50, 25], [1, 11], [5, 5], [25, 3], [20, 2], [0.25, 2]],
  clearMX: [[1, 37], [5, 18], [10, 14], [0.5, 8], [2.5, 6], [0.25, 3], [50, 3], [20, 3], [2, 3], [1.5, 2], [100, 0.4], [150, 0.3]],
  clearBR: [[1, 45], [5, 20], [10, 17], [50, 4.5], [2.5, 4], [0.25, 3], [20, 3], [25, 2], [100, 1.4], [200, 0.3]],
  clearXX: [[1, 37], [10, 24], [5, 9], [25, 7], [0.25, 6], [0.5, 4], [50, 4], [3, 3], [20, 2], [100, 1.7], [250, 0.2], [500, 0.2]],
  expanded: [[10, 1]],
  travellers: [[0.05, 2], [0.25, 2], [1, 4]],
};

// Night power as a part of the day's: [[least, most] part, weight].
const steady = [1, 1];
const night = {
  directional: [[steady, 46], [[0.4, 0.9], 20], [[0.15, 0.4], 26], [[0.07, 0.15], 8]],
  US: [[[0.004, 0.05], 50], [[0.05, 0.15], 28], [[0.15, 0.4], 11], [steady, 8], [[0.4, 0.9], 3]],
  CA: [[steady, 60], [[0.4, 0.9], 18], [[0.15, 0.4], 14], [[0.05, 0.15], 8]],
  MX: [[[0.15, 0.4], 27], [[0.4, 0.9], 22], [[0.05, 0.15], 21], [steady, 20], [[0.01, 0.05], 10]],
  BR: [[[0.15, 0.4], 51], [[0.05, 0.15], 29], [[0.4, 0.9], 9], [steady, 7], [[0.01, 0.05], 4]],
  XX: [[steady, 75], [[0.15, 0.4], 12], [[0.4, 0.9], 8], [[0.05, 0.15], 5]],
  local: [[steady, 88], [[0.4, 0.9], 9], [[0.15, 0.4], 3]],
  expanded: [[[0.1, 0.1], 1]],
};

// Powers that licences prefer; others between them are kept to two digits.
const usual = [0.01, 0.02, 0.025, 0.05, 0.1, 0.15, 0.25, 0.5, 0.75, 1, 1.5, 2, 2.5, 3, 5, 7.5, 10, 15, 20, 25, 50, 100];

function usualPower(power) {
  for (const value of usual) if (Math.abs(power / value - 1) < 0.16) return value;
  return Number(power.toPrecision(2));
}

function group(country, names) { return names.includes(country) ? country : 'XX'; }

export function dayPower(random, kind, country, directional) {
  if (kind === 'local') return random.weighted(country === 'US' || country === 'CA' ? day.localNorth : day.localSouth);
  if (kind === 'expanded') return random.weighted(country === 'CA' ? day.travellers : day.expanded);
  const power = random.weighted(day[kind + group(country, ['US', 'CA', 'MX', 'BR'])]);
  // Nobody builds an array for very little power.
  return directional && power < 1 ? random.pick([1, 5]) : power;
}

export function nightPower(random, kind, country, dayKW, directional) {
  const table = kind === 'local' && country !== 'BR' ? night.local : kind === 'expanded' ? night.expanded
    : directional ? night.directional : night[group(country, ['US', 'CA', 'MX', 'BR'])];
  const [least, most] = random.weighted(table);
  if (least === 1) return dayKW;
  const power = usualPower(dayKW * random.between(least, most));
  return directional ? Math.min(dayKW, Math.max(0.5, power)) : Math.min(dayKW, power);
}

export function criticalPower(random, dayKW) {
  return random.chance(0.3) ? dayKW : usualPower(dayKW * random.between(0.3, 0.75));
}

export function unlimitedPower(random, kind, country, directional) {
  if (kind === 'local') return dayPower(random, kind, country, false);
  if (directional) return dayPower(random, kind, country, true);
  return kind === 'clear' && country === 'US' ? random.weighted([[50, 30], [10, 20], [5, 20], [1, 30]])
    : random.weighted([[1, 45], [5, 25], [10, 30]]);
}
