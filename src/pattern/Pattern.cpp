#include "pattern/Pattern.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "core/Geodesy.h"
#include "core/Hours.h"
#include "pattern/PatternSweep.h"

namespace kestrel {
namespace {

constexpr double kPowerExponent = 0.31622;

double HoursNudge(Hours hours) {
  if (hours == Hours::Unlimited) return 1.01;
  if (hours == Hours::Daytime) return 0.99;
  return 1;
}

/// Rounds to single at each step, where the record stores the value.
void Scale(std::span<float> fields, double factor) {
  for (float& field : fields) field = static_cast<float>(field * factor);
}

void Divide(std::span<float> fields, double divisor) {
  for (float& field : fields) field = static_cast<float>(field / divisor);
}

/// Returns false when there is nothing to normalise to.
bool ScaleFields(StationRecord& record) {
  const std::span fields(record.Fields.data() + 1, static_cast<std::size_t>(record.TowerCount));
  if (fields.empty()) return true;
  const float largest = std::max(0.0F, *std::max_element(fields.begin(), fields.end()));
  if (!(largest > 0)) return false;
  Divide(fields, largest);
  double squares = 0;
  for (const float field : fields) squares += double{field} * field;
  Divide(fields, std::sqrt(squares));
  Scale(fields, HoursNudge(HoursOf(record.HoursCode)));
  Scale(fields, std::pow(record.PowerKW, kPowerExponent));
  Scale(fields, 2);
  return std::all_of(fields.begin(), fields.end(), [](float field) { return std::isfinite(field); });
}

void ResolvePositions(StationRecord& record) {
  for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i) {
    if (record.Switch[i] == "0") continue;
    const PolarOffset position =
        PolarSum({record.Spacings[i], record.Bearings[i]}, {record.Spacings[i - 1], record.Bearings[i - 1]});
    record.Spacings[i] = position.Spacing;
    record.Bearings[i] = position.Bearing;
  }
}

/// The towers in radians; every angle is converted with the one stored constant.
struct Towers {
  std::array<SweepTower, MaxTowers> All;
  int Count = 0;
};

Towers InRadians(const StationRecord& record) {
  const double perRadian = DegreesPerRadian;
  Towers towers;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i)
    towers.All[static_cast<std::size_t>(towers.Count++)] = {record.Fields[i], record.Spacings[i] / perRadian,
                                                            record.Bearings[i] / perRadian,
                                                            record.Phases[i] / perRadian};
  return towers;
}

float StraightMagnitude(const Towers& towers, std::size_t azimuth) {
  const double bearing = static_cast<double>(azimuth) / DegreesPerRadian;
  double sines = 0;
  double cosines = 0;
  for (const SweepTower& tower : std::span(towers.All).first(static_cast<std::size_t>(towers.Count))) {
    const double psi = static_cast<float>(tower.Spacing * std::cos(tower.Bearing - bearing) + tower.Phase);
    sines += tower.Field * std::sin(psi);
    cosines += tower.Field * std::cos(psi);
  }
  return static_cast<float>(std::sqrt(cosines * cosines + sines * sines));
}

}  // namespace

bool ComputePattern(StationRecord& record, PatternValues& values) {
  if (!ScaleFields(record)) return false;
  ResolvePositions(record);
  const Towers towers = InRadians(record);
  PatternValues swept;
  swept.fill(-1);
  if (CanSweep(towers.All.data(), towers.Count)) {
    if (towers.Count == 1) {
      values.fill(record.Fields[1]);  // whatever psi is: the roundings cancel, for F is a single
      return true;
    }
    if (SweepPattern(towers.All.data(), towers.Count, swept.data())) {
      values = swept;
      return true;
    }
  }
  for (std::size_t azimuth = 0; azimuth < values.size(); ++azimuth) {
    const float magnitude = swept[azimuth] >= 0 ? swept[azimuth] : StraightMagnitude(towers, azimuth);
    if (!std::isfinite(magnitude)) return false;
    values[azimuth] = magnitude;
  }
  return true;
}

}  // namespace kestrel
