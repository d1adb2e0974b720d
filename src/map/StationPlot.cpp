#include "map/StationPlot.h"

#include "data/StationLookup.h"
#include "map/PolarPlot.h"
#include "map/TowerLayout.h"

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

}  // namespace kestrel
