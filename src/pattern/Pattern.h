#pragma once

#include <array>

#include "data/StationFile.h"

namespace kestrel {

/// Field magnitudes, entry k at azimuth k degrees clockwise from true north; entry 360 repeats entry 0.
using PatternValues = std::array<float, 361>;

/// The horizontal pattern of the record's antenna: the array factor of its towers,
///
///     E(a) = | sum over towers of F exp(j psi) |,   psi = S cos(B - a) + P      (47 CFR 73.150, horizontal
///     plane)
///
/// with the field ratios normalised to unit root-sum-square, times 1.01 for "U" or 0.99 for "D" (so that the
/// outlines of one antenna never coincide), times 2 PowerKW^0.31622. A single tower is a circle; a 1 kW one
/// has magnitude 2.
///
/// Rewrites the record: `Fields` become the scaled values, `Spacings` and `Bearings` of towers placed from
/// the previous one become positions from the reference point. So the record is read anew before each
/// computation.
///
/// Returns whether it finished. It stops, `values` unchanged, when no field ratio is above 0 or the power
/// gives no number, and at the azimuth whose sum is no finite number. No towers: finished, every value 0.
bool ComputePattern(StationRecord& record, PatternValues& values);

}  // namespace kestrel
