#include "pattern/Pattern.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "core/Geodesy.h"

namespace kestrel {
namespace {

constexpr double kPowerExponent = 0.31622;

double HoursNudge(const std::string& hoursCode) {
  if (hoursCode == "U") return 1.01;
  if (hoursCode == "D") return 0.99;
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
  Scale(fields, HoursNudge(record.HoursCode));
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

}  // namespace

bool ComputePattern(StationRecord& record, PatternValues& values) {
  if (!ScaleFields(record)) return false;
  ResolvePositions(record);
  const double perRadian = DegreesPerRadian;
  for (std::size_t azimuth = 0; azimuth < values.size(); ++azimuth) {
    double sines = 0;
    double cosines = 0;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i) {
      const double turn = record.Bearings[i] / perRadian - static_cast<double>(azimuth) / perRadian;
      const double psi =
          static_cast<float>(record.Spacings[i] / perRadian * std::cos(turn) + record.Phases[i] / perRadian);
      sines += record.Fields[i] * std::sin(psi);
      cosines += record.Fields[i] * std::cos(psi);
    }
    const auto magnitude = static_cast<float>(std::sqrt(cosines * cosines + sines * sines));
    if (!std::isfinite(magnitude)) return false;
    values[azimuth] = magnitude;
  }
  return true;
}

}  // namespace kestrel
