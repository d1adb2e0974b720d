#pragma once

#include <string>
#include <vector>

#include "data/StationFile.h"
#include "map/Canvas.h"
#include "map/Sheet.h"

namespace kestrel {

/// The part of the sheet that holds the station plot: legend, polar plot and tower layout, left to right.
inline constexpr SheetArea StationPlotArea = {300, 3950, 11200, 5100};

/// Draws the records of one station and hours, each polar plot over the one before, then the spacing rings
/// with the towers of the last one, and the legend. A record with a tower that lacks its field ratio has no
/// polar plot, but its towers stand among the rings; one whose pattern cannot be computed says so, and has no
/// towers; no records are such a one, as when the reader left out one of too many towers. `records` are as
/// the file holds them.
void DrawStationPlot(Canvas& canvas, float aspectRatio, std::vector<StationRecord> records);

/// The same in words, for those who do not see it: "QDN620 nighttime, 3 towers: lobe at ...; ..." for each of
/// the records.
std::string StationPlotWords(std::vector<StationRecord> records);

}  // namespace kestrel
