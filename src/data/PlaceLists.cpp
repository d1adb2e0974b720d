#include "data/PlaceLists.h"

#include <algorithm>
#include <cmath>

#include "core/Lines.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace kestrel {

PlaceList ReadPlaceList(std::string_view bytes, std::size_t most) {
  PlaceList list;
  list.Entries.reserve(
      std::min(most, static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1));
  LineReader lines(bytes);
  while (const auto line = lines.Next()) {
    if (line->empty()) continue;
    list.IsWhole = list.Entries.size() < most;
    if (!list.IsWhole) break;
    list.Entries.emplace_back(*line);
  }
  return list;
}

Place CutCity(std::string_view line) {
  return {"", std::string(Columns(line, 12, 26)), std::string(Columns(line, 38, 9)),
          std::string(Columns(line, 48, 9))};
}

Place CutCall(std::string_view line) {
  return {std::string(Columns(line, 1, 8)), std::string(Columns(line, 15, 25)),
          std::string(Trim(Columns(line, 54, 9))), std::string(Trim(Columns(line, 64, 9)))};
}

Place TakeCity(std::string_view line) {
  Place place = CutCity(line);
  place.LatitudeText = NumberText(ParseNumber(place.LatitudeText));
  place.LongitudeText = NumberText(std::abs(ParseNumber(place.LongitudeText)));
  return place;
}

std::pair<std::string, std::string> SplitPlaceName(const std::string& name) {
  const std::string_view trimmed = Trim(name);
  const std::size_t gap = trimmed.rfind("  ");
  if (gap == std::string_view::npos) return {std::string(trimmed), {}};
  return {std::string(Trim(trimmed.substr(0, gap))), std::string(trimmed.substr(gap + 2))};
}

}  // namespace kestrel
