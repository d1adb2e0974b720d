#include "straight/Formulas.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/Geodesy.h"

namespace kestrel::straight {
namespace {

float Single(double value) {
  return static_cast<float>(value);
}

bool ScaleFields(StationRecord& record) {
  const std::span fields(record.Fields.data() + 1, static_cast<std::size_t>(record.TowerCount));
  float largest = 0;
  for (const float field : fields) largest = std::max(largest, field);
  if (fields.empty()) return true;
  if (!(largest > 0)) return false;
  for (float& field : fields) field = Single(field / largest);
  double squares = 0;
  for (const float field : fields) squares += double{field} * field;
  const double hours = record.HoursCode == "U" ? 1.01 : record.HoursCode == "D" ? 0.99 : 1;
  for (float& field : fields) {
    field = Single(field / std::sqrt(squares));
    field = Single(field * hours);
    field = Single(field * std::pow(record.PowerKW, 0.31622));
    field = Single(field * 2.0);
    if (!std::isfinite(field)) return false;
  }
  return true;
}

}  // namespace

bool ComputePattern(StationRecord& record, PatternValues& values) {
  if (!ScaleFields(record)) return false;
  const auto towers = static_cast<std::size_t>(record.TowerCount);
  for (std::size_t i = 1; i <= towers; ++i) {
    if (record.Switch[i] == "0") continue;
    const PolarOffset position =
        PolarSum({record.Spacings[i], record.Bearings[i]}, {record.Spacings[i - 1], record.Bearings[i - 1]});
    record.Spacings[i] = position.Spacing;
    record.Bearings[i] = position.Bearing;
  }
  const double perRadian = DegreesPerRadian;
  for (std::size_t azimuth = 0; azimuth < values.size(); ++azimuth) {
    double sines = 0;
    double cosines = 0;
    for (std::size_t i = 1; i <= towers; ++i) {
      const double turn = record.Bearings[i] / perRadian - static_cast<double>(azimuth) / perRadian;
      const double psi =
          Single(record.Spacings[i] / perRadian * std::cos(turn) + record.Phases[i] / perRadian);
      sines += record.Fields[i] * std::sin(psi);
      cosines += record.Fields[i] * std::cos(psi);
    }
    const float magnitude = Single(std::sqrt(cosines * cosines + sines * sines));
    if (!std::isfinite(magnitude)) return false;
    values[azimuth] = magnitude;
  }
  return true;
}

void PlaceByGreatCircle(float homeLatitude, float homeLongitude, float scaleFactor,
                        std::span<const float> latitudes, std::span<const float> longitudes,
                        std::span<Point> points) {
  for (std::size_t i = 0; i < points.size(); ++i) {
    const GreatCircleResult course =
        GreatCircle({homeLatitude, homeLongitude}, {latitudes[i], -LongitudeInRange(longitudes[i])});
    const double radius = double{course.Distance} * scaleFactor / 75;
    const double bearing = course.Bearing / 57.29578;
    points[i] = {Single(6000 + radius * std::sin(bearing)), Single(4500 - radius * std::cos(bearing))};
  }
}

Point Place(float homeLatitude, float homeLongitude, float scaleFactor, float latitude, float longitudeEast) {
  constexpr double kRadian = std::numbers::pi / 180;
  const double phi0 = homeLatitude * kRadian;
  const double phi = latitude * kRadian;
  const double lambda = (double{LongitudeInRange(longitudeEast)} + homeLongitude) * kRadian;
  const double east = std::cos(phi) * std::sin(lambda);
  const double north = std::sin(phi) * std::cos(phi0) - std::cos(phi) * std::sin(phi0) * std::cos(lambda);
  const double up = std::sin(phi) * std::sin(phi0) + std::cos(phi) * std::cos(phi0) * std::cos(lambda);
  const double level = std::sqrt(east * east + north * north);
  const double radius = std::atan2(level, up) * KilometresPerDegree / kRadian * scaleFactor / 75;
  if (!(level > 0)) return {Single(6000 + radius), 4500};
  return {Single(6000 + radius * east / level), Single(4500 - radius * north / level)};
}

}  // namespace kestrel::straight
