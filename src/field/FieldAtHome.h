#pragma once

#include <optional>
#include <string>

#include "core/Position.h"
#include "data/StationFile.h"
#include "field/GroundWave.h"
#include "field/SkyWave.h"

namespace kestrel {

/// What counts as nothing, in dB above 1 uV/m: no level is told below it.
inline constexpr double LowestLevel = -60;

/// The levels of one record at home at one moment, dB above 1 uV/m, LowestLevel at least.
struct FieldLevels {
  std::optional<double> HourlyLoss;  ///< dB below full night; nothing when there is no sky wave
  double GroundWave = LowestLevel;
  double SkyMedian = LowestLevel;       ///< of half-hours of the year's nights
  double SkyUpperDecile = LowestLevel;  ///< exceeded in a tenth of them
  double Total = LowestLevel;           ///< power sum of ground wave and median sky wave
  double High = LowestLevel;  ///< what a good hour, good ground, and an unknown pattern may make of it
};

/// The field of one record's antenna at home: what does not change with the hour, computed once.
///
///     ground wave = level of 100 mV/m at that distance + 20 log (E(azimuth, 0) / 100)
///     sky wave    = Fc + 20 log (E(azimuth, theta) / 100) - hourly loss
///     Total = 10 log (10^(ground / 10) + 10^(median / 10))
///     High  = 10 log (10^((ground + 6) / 10) + 10^(upper decile / 10)), + 6 where the pattern is not known
///
/// E by Radiation, the azimuth being the true course at the transmitter towards home. The record's numbers
/// may be of any size: latitudes beyond the poles count as the pole, and every level is a finite number.
class FieldAtHome {
 public:
  FieldAtHome(const StationRecord& record, const Position& home, const GroundWave& ground);

  const SkyWave& Path() const { return path_; }
  /// mV/m at 1 km towards home, along the ground and at the departure angle.
  double GroundField() const { return groundField_; }
  double SkyField() const { return skyField_; }
  bool PatternIsKnown() const { return patternIsKnown_; }

  FieldLevels LevelsAt(const Sun& sun) const;

  /// Why the level is what it is, in words: "ground wave", "sky wave", "sky wave 8 dB below full night",
  /// "ground and sky wave (fading)", "out of reach"; behind it, where they hold, "steep sky wave" (below 100
  /// km, little known), "very long path" (beyond 4,000 km) and "pattern not known". `levels` are those of
  /// LevelsAt.
  std::string ReasonFor(const FieldLevels& levels) const;

 private:
  SkyWave path_;
  bool hasPower_ = false;
  bool patternIsKnown_ = false;
  double groundField_ = 0;
  double skyField_ = 0;
  double groundLevel_ = LowestLevel;
  double skyMedian_ = 0;  // at full night, -infinity without a field
  double skyUpperDecile_ = 0;
};

}  // namespace kestrel
