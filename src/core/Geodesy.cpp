#include "core/Geodesy.h"

#include <algorithm>
#include <cmath>

namespace kestrel {
namespace {

/// Rounds to single, where a step of the computation stores its value.
float Single(double value) {
  return static_cast<float>(value);
}

}  // namespace

double ArcCosine(double x) {
  if (x >= 1) return 0;
  if (x <= -1) return 3.14159265;
  return 1.5707963267949 - std::atan(x / std::sqrt(1 - x * x));
}

GreatCircleResult GreatCircle(const Position& from, const Position& to) {
  const double perRadian = DegreesPerRadian;
  const double phi1 = Single(from.Latitude / perRadian);
  const double phi2 = Single(to.Latitude / perRadian);
  const double lambda1 = Single(from.Longitude / perRadian);
  const double lambda2 = Single(to.Longitude / perRadian);

  const double cosArc =
      Single(std::sin(phi1) * std::sin(phi2) + std::cos(phi2) * std::cos(phi1) * std::cos(lambda2 - lambda1));
  const double arc = Single(ArcCosine(cosArc));
  double cosBearing = 0;
  if (arc != 0)
    cosBearing = Single((std::sin(phi2) - cosArc * std::sin(phi1)) / (std::sin(arc) * std::cos(phi1)));
  const double bearing = Single(ArcCosine(std::clamp(cosBearing, -1.0, 1.0)));

  GreatCircleResult result;
  result.Distance = Single(arc * perRadian * KilometresPerDegree);
  result.Bearing = Single(bearing * perRadian);
  if (std::sin(lambda1 - lambda2) < 0) result.Bearing = Single(360.0 - result.Bearing);
  return result;
}

PolarOffset PolarSum(PolarOffset first, PolarOffset second) {
  const double perRadian = DegreesPerRadian;
  const auto east = [&](PolarOffset o) { return Single(std::sin(o.Bearing / perRadian) * o.Spacing); };
  const auto north = [&](PolarOffset o) { return Single(std::cos(o.Bearing / perRadian) * o.Spacing); };
  const double x = Single(double{east(first)} + east(second));
  const double y = Single(double{north(first)} + north(second));

  double bearing = y == 0 ? 90.0 * ((x > 0) - (x < 0)) : perRadian * std::atan(x / y);
  if (y < 0) {
    bearing += 180;
  } else if (x < 0) {
    bearing += 360;
  }
  return {Single(std::sqrt(y * y + x * x)), Single(bearing)};
}

}  // namespace kestrel
