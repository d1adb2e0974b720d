#pragma once

#include <vector>

#include "data/StationFile.h"

// The absolute field of an antenna written down as the formulas stand in pattern/Radiation.h.

namespace kestrel::straight {

/// Towers with their places along north and east, all angles in radians, filled up by the rules for heights
/// and for records without towers.
struct Antenna {
  struct Tower {
    double Field, Height, Phase, North, East;
  };
  std::vector<Tower> Towers;
  double PowerKW = 0;
  double K0 = 0;  ///< mV/m at 1 km, without loss; 0 where the power integral is
  double K = 0;   ///< mV/m at 1 km

  explicit Antenna(const StationRecord& record);

  /// e, elevation and azimuth in radians.
  double Shape(double azimuth, double elevation) const;
  /// mV/m at 1 km, degrees.
  double FieldAt(double azimuth, double elevation) const;
};

}  // namespace kestrel::straight
