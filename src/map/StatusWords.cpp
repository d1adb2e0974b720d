#include "map/StatusWords.h"

#include <cmath>
#include <optional>
#include <set>
#include <tuple>

#include "core/Numbers.h"
#include "core/Sphere.h"
#include "map/MapProjection.h"
#include "map/Rings.h"
#include "map/StationTip.h"

namespace kestrel {
namespace {

constexpr const char* kGap = "    ";

std::string Degrees(float value, const char* positive, const char* negative) {
  return FixedText(std::abs(double{value}), 3) + (value < 0 ? negative : positive);
}

std::string Counted(std::size_t count, const std::string& thing) {
  return std::to_string(count) + ' ' + thing + (count == 1 ? "" : "s");
}

}  // namespace

std::string PlaceWords(const Position& place) {
  return Degrees(place.Latitude, " N", " S") + ", " + Degrees(place.Longitude, " W", " E");
}

std::string MouseWords(const SessionState& state, Point place) {
  const std::optional<Position> at = MapProjection(state.Home(), state.ScaleFactor).PlaceAt(place);
  if (!at) return {};
  const SphereCourse back =
      CourseBetween({at->Latitude, at->Longitude}, {state.HomeLatitude, state.HomeLongitude});
  return PlaceWords(*at) + kGap + FromHomeText(state, at->Latitude, at->Longitude) +
         " from home, which lies at " + NumberText(TruncateToTenth(back.Azimuth)) + " deg from there";
}

std::size_t StationCount(const std::vector<StationMark>& marks) {
  std::set<std::tuple<int, float, float, std::string_view>> stations;
  for (const StationMark& mark : marks) stations.emplace(mark.Channel, mark.At.x, mark.At.y, mark.CallSign);
  return stations.size();
}

std::string ShownWords(const SessionState& state, std::size_t stations, float width) {
  const double across = width / TwipsPerUnit(state);
  const double step = std::pow(10, std::floor(std::log10(across)) - 2);
  const auto round = static_cast<float>(std::round(across / step) * step);
  return Counted(stations, "station") + kGap + RoundDistanceText(round, state) + " across";
}

}  // namespace kestrel
