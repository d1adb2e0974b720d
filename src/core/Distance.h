#pragma once

#include <string>

#include "core/Position.h"

// The readout of distance and bearing from home to a target.

namespace kestrel {

/// Distance and initial course, both cut to one decimal toward minus infinity.
struct DistanceReadout {
  float Bearing = 0;         ///< degrees clockwise from north, 0 to 360
  float Distance = 0;        ///< kilometres, or statute miles when `Unit` is 1
  int Unit = 0;              ///< 0 kilometres, 1 statute miles
  std::string BearingText;   ///< "123.9 deg"
  std::string DistanceText;  ///< "426.8 km " or "265.2 mi ", the blank at its end included
};

/// By GreatCircle, so distances below some 3 km are coarse. `unit` as `SessionState::DistanceUnit`; any value
/// but 1 gives kilometres. REQUIRES: all coordinates are finite.
DistanceReadout MeasureDistance(const Position& from, const Position& to, int unit);

/// A length that people name.
struct RoundDistance {
  double Kilometres = 0;
  std::string Text;  ///< "500 km", "20 mi", ".2 km"
};

/// The longest distance of at most so many kilometres that is 1, 2 or 5 times a power of ten in the unit.
/// REQUIRES: kilometres is finite and above 0.
RoundDistance LongestRoundDistance(double kilometres, int unit);

/// The line above the target boxes: "Get distance from Plano   TX to:". Without a name home's position, or
/// "home" when a coordinate is 0, stands in its place; a name of three characters or fewer gives an empty
/// line.
std::string DistanceInstruction(const std::string& homeName, const Position& home);

}  // namespace kestrel
