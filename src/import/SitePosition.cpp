#include "import/SitePosition.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/Geodesy.h"

namespace kestrel {
bool IsInAmericas(const SitePosition& position) {
  return position.Longitude >= 20 && position.Longitude <= 180;
}

double SiteDistance(const SitePosition& a, const SitePosition& b) {
  // The haversine formula.
  constexpr double kRadian = std::numbers::pi / 180;
  const double latitudes = std::sin((b.Latitude - a.Latitude) * kRadian / 2);
  const double longitudes = std::sin((b.Longitude - a.Longitude) * kRadian / 2);
  const double h = latitudes * latitudes +
                   std::cos(a.Latitude * kRadian) * std::cos(b.Latitude * kRadian) * longitudes * longitudes;
  return KilometresPerDegree / kRadian * 2 * std::asin(std::sqrt(std::clamp(h, 0.0, 1.0)));
}

}  // namespace kestrel
