// A small seeded generator of pseudo-random numbers, so that every run of a tool makes the same files.
// State: one 32-bit word stepped by a Weyl constant, output mixed by two multiply-xorshift rounds.

export class Random {
  /** seed: any text; equal texts give equal sequences. */
  constructor(seed) {
    let h = 2166136261; // FNV-1a over the seed's characters
    for (const c of seed) h = Math.imul(h ^ c.charCodeAt(0), 16777619);
    this.state = h >>> 0;
  }

  /** A number in [0, 1). */
  next() {
    this.state = (this.state + 0x9e3779b9) >>> 0;
    let z = this.state;
    z = Math.imul(z ^ (z >>> 16), 0x21f0aaad);
    z = Math.imul(z ^ (z >>> 15), 0x735a2d97);
    return ((z ^ (z >>> 15)) >>> 0) / 4294967296;
  }

  /** A number in [low, high). */
  between(low, high) { return low + (high - low) * this.next(); }

  /** A whole number 0 .. count-1. */
  below(count) { return Math.floor(this.next() * count); }

  /** True with the given probability. */
  chance(probability) { return this.next() < probability; }

  /** One entry of a list, all alike. */
  pick(list) { return list[this.below(list.length)]; }

  /** One value of a list of [value, weight] pairs, by weight. */
  weighted(pairs) {
    let total = 0;
    for (const [, weight] of pairs) total += weight;
    let left = this.next() * total;
    for (const [value, weight] of pairs) {
      left -= weight;
      if (left < 0) return value;
    }
    return pairs[pairs.length - 1][0];
  }

  /** Index into a list of running totals (ascending), by the weights they were summed from. */
  cumulative(totals) {
    const target = this.next() * totals[totals.length - 1];
    let low = 0, high = totals.length - 1;
    while (low < high) {
      const middle = (low + high) >> 1;
      if (totals[middle] > target) high = middle; else low = middle + 1;
    }
    return low;
  }
}
