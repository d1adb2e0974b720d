#pragma once

#include "core/VectorMath.h"

// The array factor of all azimuths at once. Plain arrays and plain loops, for vector code.

namespace kestrel {

/// A tower as the sweep needs it; angles in radians.
struct SweepTower {
  double Field = 0;
  double Spacing = 0;
  double Bearing = 0;
  double Phase = 0;
};

/// Azimuths in a pattern, 0 to 360 degrees.
inline constexpr int PatternAzimuths = 361;

namespace KESTREL_KERNELS {

/// Whether SweepPattern may be given these towers: angles large enough to trouble its sine are none of an
/// antenna's.
bool CanSweep(const SweepTower* towers, int count);

/// The magnitudes of
///
///     E(a) = | sum over towers of F exp(j psi) |,   psi = S cos(B - a) + P stored as a single,
///
/// for each whole degree a, where the straight way takes three sines and cosines for each tower and azimuth.
/// Here cos(B - a) is cos B cos a + sin B sin a with a table for a, and one branch-free routine gives sine
/// and cosine of psi.
///
/// The results are the straight way's singles, bit for bit: every value carries a bound on what the two ways
/// can differ by, and where a single would round differently within that bound, the magnitude is -1 and the
/// caller computes that azimuth the straight way. That happens about once in 300 azimuths of real arrays,
/// whose nulls are deep, and always where the magnitude is below 6e-5 of the fields. Returns whether no
/// magnitude is -1. REQUIRES: CanSweep.
bool SweepPattern(const SweepTower* towers, int count, float* magnitudes);

}  // namespace KESTREL_KERNELS
using KESTREL_KERNELS::CanSweep;
using KESTREL_KERNELS::SweepPattern;

}  // namespace kestrel
