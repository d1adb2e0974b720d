#include "map/MapWords.h"

#include <set>
#include <utility>

#include "core/Geodesy.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace kestrel {
namespace {

std::string_view HoursWords(HoursFilter filter) {
  if (filter == HoursFilter::Day) return "daytime and critical hours";
  return filter == HoursFilter::Night ? "nighttime and critical hours" : "all hours";
}

}  // namespace

std::string MapWords(const SessionState& state, std::span<const StationMark> marks, double kilometresAcross,
                     std::optional<Moment> moment) {
  std::set<std::pair<int, std::string_view>> stations;  // several records can be one station's
  for (const StationMark& mark : marks) stations.emplace(mark.Channel, mark.CallSign);
  std::string words = NumberText(state.CurrentFrequency) + " kHz";
  if (state.AdjacentsShown == 1) words += " with adjacent channels";
  words += ", " + std::to_string(stations.size()) + (stations.size() == 1 ? " station, " : " stations, ");
  words += moment ? "at " + MomentText(*moment) : std::string(HoursWords(state.HoursFilter));
  words += "; around home, ";
  if (const std::string_view name = Trim(state.HomeName); !name.empty()) words += std::string(name) + ", at ";
  const bool miles = state.MapUnit() == 1;
  const double across = miles ? kilometresAcross * MilesPerKilometre : kilometresAcross;
  return words + PlaceText(state.Home()) + "; " + FixedText(across, 0) + (miles ? " mi" : " km") + " across";
}

}  // namespace kestrel
