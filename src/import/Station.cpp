#include "import/Station.h"

#include <array>
#include <charconv>
#include <cmath>
#include <tuple>

#include "core/Band.h"
#include "core/Text.h"
#include "data/StationFile.h"
#include "data/StationLineText.h"

namespace kestrel {

std::optional<FacilityId> ReadFacilityId(std::string_view text) {
  text = Trim(text);
  if (text.empty() || text == "-") return 0;
  FacilityId id = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return id;
}

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
    return s.facility != 0
               ? std::tuple<std::string_view, std::string_view, std::string_view, std::string_view>{}
               : std::tuple(s.names.CallSign(), s.names.Country(), s.names.State(), s.names.City());
  };
  const auto number = [](const Station& s) { return s.facility != 0 ? 0 : s.channel; };
  return std::tuple(a.facility, number(a), place(a), a.hours) <
         std::tuple(b.facility, number(b), place(b), b.hours);
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
