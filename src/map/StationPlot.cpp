#include "map/StationPlot.h"

#include "data/StationLookup.h"
#include "map/PolarPlot.h"
#include "map/TowerLayout.h"

namespace kestrel {

void DrawStationPlot(Canvas& canvas, float aspectRatio, std::vector<StationRecord> records) {
  const StationRecord* placed = nullptr;  // the record drawn last, if its towers are known
  bool drawn = false;
  for (StationRecord& record : records) {
    if (HasBrokenTowers(record)) continue;
    drawn = true;
    PatternValues values{};
    const bool computed = ComputePattern(record, values);
    if (computed && DrawPolarPlot(canvas, aspectRatio, record.HoursCode, values)) {
      placed = &record;
    } else {
      if (!computed) DrawUnknownPattern(canvas, aspectRatio);
      placed = nullptr;
    }
  }
  if (placed != nullptr)
    DrawTowerLayout(canvas, aspectRatio, *placed);
  else if (drawn)
    DrawSpacingRings(canvas, aspectRatio);
  DrawPlotLegend(canvas);
}

}  // namespace kestrel
