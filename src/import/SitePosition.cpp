#include "import/SitePosition.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "core/Geodesy.h"
#include "import/RowFields.h"

namespace kestrel {
namespace {

Error Wrong(std::string_view name, std::string_view part, std::string_view text) {
  return {Error::Kind::Malformed, "", 0,
          std::string(name) + ": " + std::string(part) + " \"" + std::string(text) + '"'};
}

Result<double> ReadAngle(std::string_view name, const SexagesimalText& text, double most,
                         std::string_view directions) {
  const std::optional<double> degrees = WholeNumber(text.degrees);
  if (!degrees || !(*degrees >= 0 && *degrees <= most) || *degrees != std::floor(*degrees))
    return Wrong(name, "degrees", text.degrees);
  const std::optional<double> minutes = WholeNumber(text.minutes);
  if (!minutes || !(*minutes >= 0 && *minutes < 60) || *minutes != std::floor(*minutes))
    return Wrong(name, "minutes", text.minutes);
  const std::optional<double> seconds = WholeNumber(text.seconds);
  if (!seconds || !(*seconds >= 0 && *seconds <= 60)) return Wrong(name, "seconds", text.seconds);
  if (text.direction.size() != 1 || directions.find(text.direction) == std::string_view::npos)
    return Wrong(name, "direction", text.direction);
  const double angle = *degrees + (*minutes + *seconds / 60) / 60;
  if (angle > most) return Wrong(name, "degrees", text.degrees);
  return text.direction.front() == directions.front() ? angle : -angle;
}

}  // namespace

Result<SitePosition> ReadSitePosition(const SexagesimalText& latitude, const SexagesimalText& longitude) {
  const Result<double> north = ReadAngle("latitude", latitude, 90, "NS");
  if (!north) return north.error();
  const Result<double> west = ReadAngle("longitude", longitude, 180, "WE");
  if (!west) return west.error();
  return SitePosition{*north, *west};
}

bool IsInAmericas(const SitePosition& position) {
  return position.longitude >= 20 && position.longitude <= 180;
}

double SiteDistance(const SitePosition& a, const SitePosition& b) {
  // The haversine formula.
  constexpr double kRadian = std::numbers::pi / 180;
  const double latitudes = std::sin((b.latitude - a.latitude) * kRadian / 2);
  const double longitudes = std::sin((b.longitude - a.longitude) * kRadian / 2);
  const double h = latitudes * latitudes +
                   std::cos(a.latitude * kRadian) * std::cos(b.latitude * kRadian) * longitudes * longitudes;
  return KilometresPerDegree / kRadian * 2 * std::asin(std::sqrt(std::clamp(h, 0.0, 1.0)));
}

}  // namespace kestrel
