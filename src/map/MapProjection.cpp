#include "map/MapProjection.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "core/Geodesy.h"

namespace kestrel {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
constexpr double kKilometresPerScale = 75;

}  // namespace

MapProjection::MapProjection(float homeLatitude, float homeLongitude, float scaleFactor)
    : sinLatitude_(std::sin(homeLatitude * kRadian)),
      cosLatitude_(std::cos(homeLatitude * kRadian)),
      longitudeEast_(-double{homeLongitude}),
      twipsPerRadian_(KilometresPerDegree / kRadian * scaleFactor / kKilometresPerScale) {}

Point MapProjection::Place(double latitude, double longitudeEast) const {
  const double phi = latitude * kRadian;
  const double lambda = (longitudeEast - longitudeEast_) * kRadian;
  // The place as a unit vector along east, north and up at home.
  const double east = std::cos(phi) * std::sin(lambda);
  const double north = std::sin(phi) * cosLatitude_ - std::cos(phi) * sinLatitude_ * std::cos(lambda);
  const double up = std::sin(phi) * sinLatitude_ + std::cos(phi) * cosLatitude_ * std::cos(lambda);
  const double level = std::sqrt(east * east + north * north);
  const double radius = std::atan2(level, up) * twipsPerRadian_;
  // Straight below or above there is no course; the place itself is home's.
  const double eastShare = level > 0 ? east / level : 1;
  const double northShare = level > 0 ? north / level : 0;
  return {static_cast<float>(HomeOnSheet.x + radius * eastShare),
          static_cast<float>(HomeOnSheet.y - radius * northShare)};
}

std::optional<Point> MapProjection::Station(float latitude, float longitude) const {
  const Point place = Place(latitude, -double{longitude});
  if (!std::isfinite(place.x) || !std::isfinite(place.y)) return std::nullopt;
  return Clamped(place);
}

void MapProjection::Vertices(std::span<const float> latitudes, std::span<const float> longitudes,
                             std::span<Point> points) const {
  for (std::size_t i = 0; i < points.size(); ++i)
    points[i] = Place(latitudes[i], BringIntoRange(longitudes[i]));
}

float BringIntoRange(float longitudeEast) {
  if (longitudeEast > 180) longitudeEast -= 360;
  if (longitudeEast > 180) longitudeEast -= 360;
  if (longitudeEast < -180) longitudeEast += 360;
  return longitudeEast;
}

}  // namespace kestrel
