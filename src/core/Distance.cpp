#include "core/Distance.h"

#include <cmath>

#include "core/Geodesy.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace kestrel {

DistanceReadout MeasureDistance(const Position& from, const Position& to, int unit) {
  const GreatCircleResult course = GreatCircle(from, to);
  DistanceReadout readout;
  readout.Unit = unit == 1 ? 1 : 0;
  readout.Bearing = TruncateToTenth(course.Bearing);
  const float distance =
      readout.Unit == 1 ? static_cast<float>(course.Distance * MilesPerKilometre) : course.Distance;
  readout.Distance = TruncateToTenth(distance);
  readout.BearingText = NumberText(readout.Bearing) + " deg";
  readout.DistanceText = NumberText(readout.Distance) + (readout.Unit == 1 ? " mi " : " km ");
  return readout;
}

RoundDistance LongestRoundDistance(double kilometres, int unit) {
  const double perKilometre = unit == 1 ? MilesPerKilometre : 1;
  const double longest = kilometres * perKilometre;
  const double power = std::pow(10, std::floor(std::log10(longest)));
  const double length = longest >= 5 * power ? 5 * power : longest >= 2 * power ? 2 * power : power;
  return {length / perKilometre, NumberText(static_cast<float>(length)) + (unit == 1 ? " mi" : " km")};
}

std::string DistanceInstruction(const std::string& homeName, const Position& home) {
  const auto line = [](std::string_view from) { return "Get distance from " + std::string(from) + " to:"; };
  if (!homeName.empty()) return CharacterCount(Trim(homeName)) > 3 ? line(Trim(homeName)) : std::string();
  if (home.Latitude == 0 || home.Longitude == 0) return line("home");
  return line(PositionText(home));
}

}  // namespace kestrel
