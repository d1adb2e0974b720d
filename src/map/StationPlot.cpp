#include "map/StationPlot.h"

#include "data/StationLookup.h"
#include "map/PolarPlot.h"
#include "map/TowerLayout.h"
#include "pattern/PatternWords.h"

namespace kestrel {

void DrawStationPlot(Canvas& canvas, float aspectRatio, std::vector<StationRecord> records) {
  if (records.empty()) DrawUnknownPattern(canvas, aspectRatio);
  const StationRecord* placed = nullptr;  // the last record, if the places of its towers are known
  for (StationRecord& record : records) {
    const bool broken = HasBrokenTowers(record);
    PatternValues values{};
    const bool computed = ComputePattern(record, values);
    if (!computed && !broken) DrawUnknownPattern(canvas, aspectRatio);
    const bool known =
        computed && (broken || DrawPolarPlot(canvas, aspectRatio, HoursOf(record.HoursCode), values));
    placed = known ? &record : nullptr;
  }
  if (placed != nullptr)
    DrawTowerLayout(canvas, aspectRatio, *placed);
  else
    DrawSpacingRings(canvas, aspectRatio);
  DrawPlotLegend(canvas);
}

std::string StationPlotWords(std::vector<StationRecord> records) {
  if (records.empty()) return "pattern not known";
  std::string words;
  for (StationRecord& record : records) {
    const int towers = record.TowerCount;
    if (!words.empty()) words += "; ";
    words += record.CallSign + ' ' + HoursWord(record.HoursCode) + ", " + std::to_string(towers) +
             (towers == 1 ? " tower: " : " towers: ");
    PatternValues values{};
    const bool drawn = !HasBrokenTowers(record) && ComputePattern(record, values);
    words += drawn ? PatternWords(values) : "pattern not known";
  }
  return words;
}

}  // namespace kestrel
