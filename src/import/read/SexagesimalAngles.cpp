#include "import/read/SexagesimalAngles.h"

#include <cmath>
#include <optional>
#include <string>

#include "import/read/RowFields.h"

namespace kestrel {
namespace {

Error Wrong(std::string_view name, std::string_view part, std::string_view text) {
  return {Error::Kind::Malformed, "", 0,
          std::string(name) + ": " + std::string(part) + " \"" + std::string(text) + '"'};
}

Result<double> ReadAngle(std::string_view name, const SexagesimalText& text, double most,
                         std::string_view directions) {
  const std::optional<double> degrees = WholeNumber(text.Degrees);
  if (!degrees || !(*degrees >= 0 && *degrees <= most) || *degrees != std::floor(*degrees))
    return Wrong(name, "degrees", text.Degrees);
  const std::optional<double> minutes = WholeNumber(text.Minutes);
  if (!minutes || !(*minutes >= 0 && *minutes < 60) || *minutes != std::floor(*minutes))
    return Wrong(name, "minutes", text.Minutes);
  const std::optional<double> seconds = WholeNumber(text.Seconds);
  if (!seconds || !(*seconds >= 0 && *seconds <= 60)) return Wrong(name, "seconds", text.Seconds);
  if (text.Direction.size() != 1 || directions.find(text.Direction) == std::string_view::npos)
    return Wrong(name, "direction", text.Direction);
  const double angle = *degrees + (*minutes + *seconds / 60) / 60;
  if (angle > most) return Wrong(name, "degrees", text.Degrees);
  return text.Direction.front() == directions.front() ? angle : -angle;
}

}  // namespace

Result<SitePosition> ReadSitePosition(const SexagesimalText& latitude, const SexagesimalText& longitude) {
  const Result<double> north = ReadAngle("latitude", latitude, 90, "NS");
  if (!north) return north.error();
  const Result<double> west = ReadAngle("longitude", longitude, 180, "WE");
  if (!west) return west.error();
  return SitePosition{*north, *west};
}

}  // namespace kestrel
