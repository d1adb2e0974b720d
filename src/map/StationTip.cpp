#include "map/StationTip.h"

#include <algorithm>
#include <cmath>

#include "core/Distance.h"
#include "core/Hours.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "data/StationFile.h"
#include "map/ChannelPlot.h"
#include "map/Labels.h"
#include "map/MapProjection.h"

namespace kestrel {
namespace {

/// City and state; a file that knows no state has "-".
std::string PlaceText(const StationRecord& record) {
  return record.State.empty() || record.State == "-" ? record.City : record.City + ", " + record.State;
}

}  // namespace

const StationMark* NearestStation(std::span<const StationMark> marks, Point point, float radius) {
  const StationMark* nearest = nullptr;
  float reach = radius;
  for (const StationMark& mark : marks) {
    const float distance = std::hypot(mark.At.x - point.x, mark.At.y - point.y);
    if (distance > reach) continue;
    reach = distance;
    nearest = &mark;
  }
  return nearest;
}

std::optional<std::string> StationTip(const DataFolder& folder, const SessionState& state,
                                      const StationMark& mark) {
  const QString name = StationFileName(static_cast<float>(mark.Channel));
  const Result<QByteArray> bytes = folder.Read(name);
  if (!bytes) return std::nullopt;
  const MapProjection projection(state.Home(), state.ScaleFactor);
  StationLineReader reader({bytes->constData(), static_cast<std::size_t>(bytes->size())});
  std::string head;
  std::string powers;
  std::string place;
  StationRecord record;
  while (const std::optional<StationLine> line = reader.Next()) {
    StoreStationLine(*line, record);
    const bool shown =
        record.HoursCode == mark.HoursCode || Passes(HoursOf(record.HoursCode), state.HoursFilter);
    if (record.CallSign != mark.CallSign || !shown) continue;
    if (projection.Station(record.At()) != mark.At) continue;
    if (head.empty()) {
      head = std::to_string(mark.Channel) + " kHz " + record.CallSign + "  " + PlaceText(record);
      place = FromHomeText(state, record.Latitude, record.Longitude);
    }
    if (!powers.empty()) powers += ", ";
    powers += PowerText(record.PowerKW) + ' ' + HoursWord(record.HoursCode);
  }
  if (head.empty()) return std::nullopt;
  return head + '\n' + powers + '\n' + place;
}

std::string StationsTip(const DataFolder& folder, const SessionState& state, std::vector<StationMark> marks) {
  constexpr std::size_t kMostLines = 8;
  std::stable_sort(marks.begin(), marks.end(), [](const StationMark& a, const StationMark& b) {
    return LabelWeight(a.At, a.PowerKW) > LabelWeight(b.At, b.PowerKW);
  });
  std::vector<const StationMark*> stations;
  for (const StationMark& mark : marks)
    if (std::none_of(stations.begin(), stations.end(), [&](const StationMark* other) {
          return other->Channel == mark.Channel && other->CallSign == mark.CallSign && other->At == mark.At;
        }))
      stations.push_back(&mark);
  if (stations.size() == 1) return StationTip(folder, state, *stations[0]).value_or("");
  std::string tip;
  for (std::size_t i = 0; i < std::min(stations.size(), kMostLines); ++i) {
    std::string line = StationTip(folder, state, *stations[i]).value_or("");
    if (line.empty()) continue;
    line.replace(line.find('\n'), 1, ": ");
    line.replace(line.rfind('\n'), 1, "; ");
    tip += (tip.empty() ? "" : "\n") + line;
  }
  if (stations.size() > kMostLines && !tip.empty())
    tip += "\nand " + std::to_string(stations.size() - kMostLines) + " more";
  return tip;
}

bool OpensLookup(const StationMark& mark, const SessionState& state) {
  return static_cast<float>(mark.Channel) == state.CurrentFrequency;
}

std::string PowerText(float powerKW) {
  if (powerKW < 1) return NumberText(powerKW * 1000) + " watts";
  return NumberText(powerKW) + " kW";
}

std::string FromHomeText(const SessionState& state, float latitude, float longitudeWest) {
  const DistanceReadout readout = MeasureDistance(state.Home(), {latitude, longitudeWest}, state.MapUnit());
  return std::string(Trim(readout.DistanceText)) + ", " + readout.BearingText;
}

}  // namespace kestrel
