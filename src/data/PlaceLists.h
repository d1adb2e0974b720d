#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The city list "Kestrel.lst" and the call-sign index "StationsCall.DAT": one entry a line, fixed columns.
// docs/formats/place-lists.md describes them.

namespace kestrel {

inline constexpr std::size_t MaxCities = 3400;
inline constexpr std::size_t MaxCalls = 9000;

struct PlaceList {
  std::vector<std::string> Entries;
  bool IsWhole = true;  ///< false: the file has more of them
};

/// The lines that are not empty, in file order, the first `most` of them.
PlaceList ReadPlaceList(std::string_view bytes, std::size_t most);

/// An entry of either list, its fields cut by position.
struct Place {
  std::string CallSign;       ///< first 8 characters of a call-sign entry; empty for a city
  std::string Name;           ///< city and state with the blanks between them, as it becomes `HomeName`
  std::string LatitudeText;   ///< as the columns hold it
  std::string LongitudeText;  ///< as the columns hold it
};

Place CutCity(std::string_view line);
Place CutCall(std::string_view line);

/// A city as a window takes it: both coordinates as plain numbers, the longitude without its sign.
Place TakeCity(std::string_view line);

/// A name cut at its last two blanks in a row: "Abilene  TX   " is "Abilene" and "TX". Without such
/// blanks the second part is empty.
std::pair<std::string, std::string> SplitPlaceName(const std::string& name);

}  // namespace kestrel
