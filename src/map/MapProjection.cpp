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

MapProjection::MapProjection(float homeLatitude, float homeLongitude, float scaleFactor) {
  const auto [sine, cosine] = VertexAngle(homeLatitude);
  center_ = {sine, cosine, -double{homeLongitude},
             KilometresPerDegree / kRadian * scaleFactor / kKilometresPerScale};
  onEarth_ = std::abs(homeLatitude) <= 90 && std::abs(homeLongitude) <= 360;
  if (onEarth_) return;
  center_.SinLatitude = std::sin(homeLatitude * kRadian);
  center_.CosLatitude = std::cos(homeLatitude * kRadian);
}

Point MapProjection::StraightPlace(double latitude, double longitudeEast) const {
  const double sinHome = center_.SinLatitude;
  const double cosHome = center_.CosLatitude;
  const double phi = latitude * kRadian;
  const double lambda = (longitudeEast - center_.LongitudeEast) * kRadian;
  // The place as a unit vector along east, north and up at home.
  const double east = std::cos(phi) * std::sin(lambda);
  const double north = std::sin(phi) * cosHome - std::cos(phi) * sinHome * std::cos(lambda);
  const double up = std::sin(phi) * sinHome + std::cos(phi) * cosHome * std::cos(lambda);
  const double level = std::sqrt(east * east + north * north);
  const double radius = std::atan2(level, up) * center_.TwipsPerRadian;
  // Straight below or above there is no course; the place itself is home's.
  const double eastShare = level > 0 ? east / level : 1;
  const double northShare = level > 0 ? north / level : 0;
  return {static_cast<float>(HomeOnSheet.x + radius * eastShare),
          static_cast<float>(HomeOnSheet.y - radius * northShare)};
}

std::optional<Point> MapProjection::Station(float latitude, float longitude) const {
  const float longitudeEast = -longitude;
  Point place;
  Vertices({&latitude, 1}, {&longitudeEast, 1}, {&place, 1});
  if (!std::isfinite(place.x) || !std::isfinite(place.y)) return std::nullopt;
  return Clamped(place);
}

void MapProjection::Vertices(std::span<const float> latitudes, std::span<const float> longitudes,
                             std::span<Point> points) const {
  static_assert(sizeof(Point) == 2 * sizeof(float));
  if (points.empty()) return;
  if (onEarth_) PlaceVertices(center_, latitudes.data(), longitudes.data(), &points[0].x, points.size());
  for (std::size_t i = 0; i < points.size(); ++i)
    if (!onEarth_ || std::isnan(points[i].x))
      points[i] = StraightPlace(latitudes[i], BringIntoRange(longitudes[i]));
}

float BringIntoRange(float longitudeEast) {
  return LongitudeInRange(longitudeEast);
}

}  // namespace kestrel
