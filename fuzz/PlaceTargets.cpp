#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "ByTheRules.h"
#include "Targets.h"
#include "WholeOutline.h"
#include "core/Position.h"
#include "core/Text.h"
#include "data/OutlineFile.h"
#include "data/PlaceLists.h"

namespace kestrel::fuzz {
namespace {

Outline OutlineByTheRules(std::string_view bytes, CommentLines comments) {
  Outline outline;
  for (const std::string& entry : EntriesByTheRules(bytes)) {
    const std::string line = Trimmed(entry);
    if (line.empty()) continue;
    if (comments == CommentLines::Skip &&
        std::string_view("><!*'/\\").find(line[0]) != std::string_view::npos)
      continue;
    if (NumberByTheRules(line) == -2000) break;
    const auto fields = FieldsByTheRules(line, ' ', 2);
    const auto latitude = static_cast<float>(NumberByTheRules(fields[0]));
    const auto longitude = static_cast<float>(NumberByTheRules(fields[1]));
    if (latitude == -100 && longitude == -100) {
      outline.PenUpBefore.push_back(outline.Latitude.size());
    } else {
      outline.Latitude.push_back(latitude);
      outline.Longitude.push_back(longitude);
    }
  }
  return outline;
}

/// Holds the columns of both lists, their names as they stand.
void HoldColumns(const std::string& entry) {
  const auto columns = [&](std::size_t first, std::size_t last) {
    return ColumnsByTheRules(entry, first, last);
  };
  const Place city = CutCity(entry);
  Hold(city.Name == columns(12, 37), "a city's name is cut by its columns");
  Hold(city.LatitudeText == columns(38, 46) && city.LongitudeText == columns(48, 56),
       "a city's position is cut by its columns");
  const Place call = CutCall(entry);
  Hold(call.CallSign == columns(1, 8) && call.Name == columns(15, 39), "a call sign is cut by its columns");
  Hold(call.LatitudeText == Trimmed(columns(54, 62)) && call.LongitudeText == Trimmed(columns(64, 72)),
       "a station's position is cut by its columns");
}

void UsePlace(const Place& place) {
  const Position home = ReadHomePosition(place.LatitudeText, place.LongitudeText);
  Hold(home.Latitude >= -88 && home.Latitude <= 88, "home lies within 88 degrees");
  Hold(home.Longitude >= 30 && home.Longitude <= 170, "home lies in the west");
  const auto [town, state] = SplitPlaceName(place.Name);
  Hold(CharacterCount(place.Name) <= 26, "a name fits its columns");
  Hold(town.size() + state.size() <= place.Name.size(), "a name is cut, not made");
}

/// Both parts of an outline, cut before a pen-up mark, one behind the other.
Outline InTwoParts(std::string_view bytes) {
  const std::size_t cut = FindPenUp(bytes, bytes.size() / 2);
  Outline whole;
  for (const std::string_view part : {bytes.substr(0, cut), bytes.substr(cut)}) {
    OutlineReader reader(part);
    while (const Outline* const piece = reader.Next()) Append(*piece, whole);
    if (reader.Ended()) break;
  }
  return whole;
}

}  // namespace

bool OutlineFile(std::string_view bytes) {
  for (const CommentLines comments : {CommentLines::Read, CommentLines::Skip}) {
    const Outline outline = WholeOutline(bytes, comments);
    const Outline wanted = OutlineByTheRules(bytes, comments);
    Hold(outline.Latitude == wanted.Latitude && outline.Longitude == wanted.Longitude &&
             outline.PenUpBefore == wanted.PenUpBefore,
         "an outline is read by the rules");
    for (std::size_t i = 0; i < outline.Latitude.size(); ++i) {
      HoldFinite(outline.Latitude[i]);
      HoldFinite(outline.Longitude[i]);
    }
  }
  const Outline whole = WholeOutline(bytes);
  const Outline parts = InTwoParts(bytes);
  Hold(whole.Latitude == parts.Latitude && whole.Longitude == parts.Longitude &&
           whole.PenUpBefore == parts.PenUpBefore,
       "an outline in two parts is the whole");
  return true;
}

bool PlaceLists(std::string_view bytes) {
  constexpr std::size_t kMost = 50;
  const PlaceList list = ReadPlaceList(bytes, kMost);
  auto wanted = EntriesByTheRules(bytes);
  Hold(list.IsWhole == (wanted.size() <= kMost), "a list with too many entries says so");
  wanted.resize(std::min(wanted.size(), kMost));
  Hold(list.Entries == wanted, "the entries are the lines that are not empty");
  for (const std::string& entry : list.Entries) {
    HoldColumns(entry);
    UsePlace(CutCity(entry));
    UsePlace(CutCall(entry));
    UsePlace(TakeCity(entry));
  }
  return list.IsWhole;
}

}  // namespace kestrel::fuzz
