#include "core/Sphere.h"

#include <cmath>
#include <numbers>

namespace kestrel {
namespace {

constexpr double kRadian = std::numbers::pi / 180;

}  // namespace

SphereCourse CourseBetween(const SpherePoint& from, const SpherePoint& to) {
  const double sineFrom = std::sin(from.Latitude * kRadian);
  const double cosineFrom = std::cos(from.Latitude * kRadian);
  const double sineTo = std::sin(to.Latitude * kRadian);
  const double cosineTo = std::cos(to.Latitude * kRadian);
  const double turn = (from.Longitude - to.Longitude) * kRadian;
  const double cosineTurn = std::cos(turn);
  const double east = cosineTo * std::sin(turn);
  const double north = cosineFrom * sineTo - sineFrom * cosineTo * cosineTurn;
  const double up = sineFrom * sineTo + cosineFrom * cosineTo * cosineTurn;
  const double azimuth = std::atan2(east, north) / kRadian;
  return {std::atan2(std::hypot(east, north), up) / kRadian, azimuth < 0 ? azimuth + 360 : azimuth};
}

SpherePoint PlaceAlong(const SpherePoint& from, const SphereCourse& course) {
  const double sineFrom = std::sin(from.Latitude * kRadian);
  const double cosineFrom = std::cos(from.Latitude * kRadian);
  const double sineArc = std::sin(course.Arc * kRadian);
  const double cosineArc = std::cos(course.Arc * kRadian);
  const double north = sineArc * std::cos(course.Azimuth * kRadian);
  const double east = sineArc * std::sin(course.Azimuth * kRadian);
  const double outward = cosineFrom * cosineArc - sineFrom * north;  // from the axis, on the start's meridian
  const double latitude = std::atan2(sineFrom * cosineArc + cosineFrom * north, std::hypot(outward, east));
  return {latitude / kRadian, std::remainder(from.Longitude - std::atan2(east, outward) / kRadian, 360)};
}

}  // namespace kestrel
