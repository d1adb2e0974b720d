#include <cstddef>
#include <string>
#include <vector>

#include "Targets.h"
#include "core/Lines.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "core/TextFields.h"
#include "data/OutlineFile.h"
#include "data/PlaceLists.h"

namespace kestrel::fuzz {
namespace {

/// The same by the rules alone, every line taken the long way.
Outline OutlineByTheRules(std::string_view bytes, CommentLines comments) {
  Outline outline;
  LineReader lines(bytes);
  while (const auto next = lines.Next()) {
    std::string_view line = Trim(*next);
    if (line.empty()) continue;
    if (comments == CommentLines::Skip && std::string_view("><!*'/\\").find(line[0]) != std::string_view::npos)
      continue;
    if (LeadingNumber(line) == -2000) break;
    const auto latitude = static_cast<float>(LeadingNumber(NextBlankField(line).value_or("")));
    const auto longitude = static_cast<float>(LeadingNumber(NextBlankField(line).value_or("")));
    if (latitude == -100 && longitude == -100) {
      outline.PenUpBefore.push_back(outline.Latitude.size());
    } else {
      outline.Latitude.push_back(latitude);
      outline.Longitude.push_back(longitude);
    }
  }
  return outline;
}

void UsePlace(const Place& place) {
  const HomePosition home = ReadHomePosition(place.LatitudeText, place.LongitudeText);
  Hold(home.Latitude >= -88 && home.Latitude <= 88, "home lies within 88 degrees");
  Hold(home.Longitude >= 30 && home.Longitude <= 170, "home lies in the west");
  const auto [town, state] = SplitPlaceName(place.Name);
  Hold(CharacterCount(place.Name) <= 26, "a name fits its columns");
  Hold(town.size() + state.size() <= place.Name.size(), "a name is cut, not made");
}

}  // namespace

void OutlineFile(std::string_view bytes) {
  for (const CommentLines comments : {CommentLines::Read, CommentLines::Skip}) {
    const Outline outline = ReadOutline(bytes, comments);
    const Outline wanted = OutlineByTheRules(bytes, comments);
    Hold(outline.Latitude == wanted.Latitude && outline.Longitude == wanted.Longitude &&
             outline.PenUpBefore == wanted.PenUpBefore,
         "the quick way through a line reads what the long way reads");
    for (std::size_t i = 0; i < outline.Latitude.size(); ++i) {
      HoldFinite(outline.Latitude[i]);
      HoldFinite(outline.Longitude[i]);
    }
  }
}

void PlaceLists(std::string_view bytes) {
  constexpr std::size_t kMost = 50;
  const auto entries = ReadPlaceList(bytes, kMost);
  if (!entries) return;
  Hold(entries->size() <= kMost, "no more entries than allowed");
  for (const std::string& entry : *entries) {
    Hold(!entry.empty(), "empty lines are no entries");
    UsePlace(CutCity(entry));
    UsePlace(CutCall(entry));
    UsePlace(TakeCity(entry));
  }
}

}  // namespace kestrel::fuzz
