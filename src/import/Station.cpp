#include "import/Station.h"

#include <cmath>

#include "data/StationFile.h"
#include "data/StationLineText.h"

namespace kestrel {

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
