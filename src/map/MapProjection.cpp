#include "map/MapProjection.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "core/Geodesy.h"
#include "core/Sphere.h"

namespace kestrel {
namespace {

constexpr double kRadian = std::numbers::pi / 180;

}  // namespace

MapProjection::MapProjection(const Position& home, float scaleFactor) {
  const auto [sine, cosine] = SineAndCosine(home.Latitude);
  center_ = {sine, cosine, -double{home.Longitude},
             KilometresPerDegree / kRadian * scaleFactor / KilometresPerScale};
  onEarth_ = std::abs(home.Latitude) <= 90 && std::abs(home.Longitude) <= 360;
  if (onEarth_) return;
  center_.SinLatitude = std::sin(home.Latitude * kRadian);
  center_.CosLatitude = std::cos(home.Latitude * kRadian);
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

std::optional<Point> MapProjection::Station(const Position& position) const {
  const float longitudeEast = -position.Longitude;
  Point place;
  Vertices({&position.Latitude, 1}, {&longitudeEast, 1}, {&place, 1});
  if (!std::isfinite(place.x) || !std::isfinite(place.y)) return std::nullopt;
  return Clamped(place);
}

std::optional<Position> MapProjection::PlaceAt(Point at) const {
  const double east = double{at.x} - HomeOnSheet.x;
  const double north = double{HomeOnSheet.y} - at.y;
  const double arc = std::hypot(east, north) / center_.TwipsPerRadian / kRadian;
  if (!(arc <= 180)) return std::nullopt;
  const SpherePoint home = {std::atan2(center_.SinLatitude, center_.CosLatitude) / kRadian,
                            -center_.LongitudeEast};
  const SpherePoint place = PlaceAlong(home, {arc, std::atan2(east, north) / kRadian});
  return Position{static_cast<float>(place.Latitude), static_cast<float>(place.Longitude)};
}

void MapProjection::Vertices(std::span<const float> latitudes, std::span<const float> longitudes,
                             std::span<Point> points) const {
  static_assert(sizeof(Point) == 2 * sizeof(float));
  if (points.empty()) return;
  if (onEarth_) PlaceVertices(center_, latitudes.data(), longitudes.data(), &points[0].x, points.size());
  for (std::size_t i = 0; i < points.size(); ++i)
    if (!onEarth_ || std::isnan(points[i].x))
      points[i] = StraightPlace(latitudes[i], LongitudeInRange(longitudes[i]));
}

}  // namespace kestrel
