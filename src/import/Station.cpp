#include "import/Station.h"

#include <cmath>

#include "data/StationFile.h"
#include "data/StationLineText.h"

namespace kestrel {

std::string Identity(const Station& station) {
  if (!station.facility.empty()) return station.facility + '|' + station.hours;
  return station.callSign + '|' + std::to_string(station.channel) + '|' + station.country + '|' +
         station.state + '|' + station.city + '|' + station.hours;
}

bool IsOnRaster(double kilohertz) {
  return kilohertz >= LowestChannel && kilohertz <= HighestChannel && std::fmod(kilohertz, ChannelStep) == 0;
}

bool IsCallSign(std::string_view text) {
  return !text.empty() && text != "-" && text != "NEW";
}

std::string PowerFault(double powerKW) {
  constexpr double kLeast = 0.0001;
  constexpr double kMost = 10000;
  if (powerKW >= kLeast && powerKW <= kMost) return {};
  return "a power of " + DecimalText(powerKW, 6) + " kW";
}

}  // namespace kestrel
