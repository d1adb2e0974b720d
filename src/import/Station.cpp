#include "import/Station.h"

#include <array>
#include <cmath>
#include <tuple>

#include "core/Band.h"
#include "core/Text.h"
#include "data/StationFile.h"
#include "data/StationLineText.h"

namespace kestrel {

StationNames::StationNames(std::string_view callSign, std::string_view city, std::string_view state,
                           std::string_view country) {
  constexpr std::size_t kLongest = 200;  // bytes
  constexpr std::size_t kKept = 50;      // characters
  std::array names = {callSign, city, state, country};
  for (std::string_view& name : names)
    if (name.size() > kLongest) name = Columns(name, 1, kKept);
  texts_ = PackedTexts<4>(names);
}

bool IdentityLess(const Station& a, const Station& b) {
  const auto place = [](const Station& s) {
    return s.Facility != 0
               ? std::tuple<std::string_view, std::string_view, std::string_view, std::string_view>{}
               : std::tuple(s.Names.CallSign(), s.Names.Country(), s.Names.State(), s.Names.City());
  };
  const auto number = [](const Station& s) { return s.Facility != 0 ? 0 : s.Channel; };
  return std::tuple(a.Facility, number(a), place(a), a.Hours) <
         std::tuple(b.Facility, number(b), place(b), b.Hours);
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
