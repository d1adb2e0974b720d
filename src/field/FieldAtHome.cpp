#include "field/FieldAtHome.h"

#include <algorithm>
#include <cmath>

#include "pattern/Radiation.h"

namespace kestrel {
namespace {

constexpr double kGoodGround = 6;       // dB that a better ground or path may add
constexpr double kUnknownPattern = 6;   // dB that a main lobe may add
constexpr double kStronger = 6;         // dB by which one wave leaves the other without weight
constexpr double kToldLoss = 3;         // dB
constexpr double kSteepPath = 100;      // km
constexpr double kVeryLongPath = 4000;  // km

SpherePoint OnSphere(const Position& place) {
  return {std::clamp<double>(place.Latitude, -90, 90), place.Longitude};
}

/// Of a field in mV/m against 100 mV/m, dB; minus infinity without one.
double Gain(double field) {
  return 20 * std::log10(field / 100);
}

double PowerSum(double a, double b) {
  return 10 * std::log10(std::pow(10, a / 10) + std::pow(10, b / 10));
}

}  // namespace

FieldAtHome::FieldAtHome(const StationRecord& record, const Position& home, const GroundWave& ground)
    : path_(OnSphere(record.At()), OnSphere(home)), hasPower_(record.PowerKW > 0) {
  const Radiation radiation(record);
  patternIsKnown_ = radiation.PatternIsKnown();
  groundField_ = radiation.FieldAt(path_.Azimuth(), 0);
  skyField_ = radiation.FieldAt(path_.Azimuth(), path_.DepartureAngle());
  groundLevel_ = std::max(LowestLevel, ground.LevelAt(path_.Kilometres()) + Gain(groundField_));
  skyMedian_ = path_.Median() + Gain(skyField_);
  skyUpperDecile_ = path_.UpperDecile() + Gain(skyField_);
}

FieldLevels FieldAtHome::LevelsAt(const Sun& sun) const {
  FieldLevels levels;
  levels.HourlyLoss = path_.HourlyLoss(sun);
  levels.GroundWave = groundLevel_;
  if (levels.HourlyLoss) {
    levels.SkyMedian = std::max(LowestLevel, skyMedian_ - *levels.HourlyLoss);
    levels.SkyUpperDecile = std::max(LowestLevel, skyUpperDecile_ - *levels.HourlyLoss);
  }
  levels.Total = PowerSum(levels.GroundWave, levels.SkyMedian);
  levels.High = PowerSum(levels.GroundWave + kGoodGround, levels.SkyUpperDecile) +
                (patternIsKnown_ ? 0 : kUnknownPattern);
  return levels;
}

std::string FieldAtHome::ReasonFor(const FieldLevels& levels) const {
  if (!hasPower_) return "power not known";
  std::string reason;
  const double ground = levels.GroundWave;
  const double sky = levels.SkyMedian;
  if (std::max(ground, sky) <= LowestLevel) {
    reason = "out of reach";
  } else if (ground >= sky + kStronger) {
    reason = "ground wave";
  } else {
    const bool told = levels.HourlyLoss && *levels.HourlyLoss >= kToldLoss;
    const std::string below =
        told ? " " + std::to_string(std::lround(*levels.HourlyLoss)) + " dB below full night" : "";
    const bool alone = sky >= ground + kStronger;
    reason = alone ? "sky wave" + below : "ground and sky wave (fading)" + (told ? ", sky wave" + below : "");
    if (path_.Kilometres() < kSteepPath) reason += ", steep sky wave";
  }
  if (!patternIsKnown_) reason += ", pattern not known";
  if (path_.Kilometres() > kVeryLongPath) reason += ", very long path";
  return reason;
}

}  // namespace kestrel
