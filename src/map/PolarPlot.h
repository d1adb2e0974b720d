#pragma once

#include <string>

#include "core/Hours.h"
#include "map/Canvas.h"
#include "pattern/Pattern.h"

// The polar plot of one antenna's pattern: bearings clockwise from north, the largest excursion at a fixed
// radius whatever the station's power. `aspectRatio` widens it as it widens patterns on the map.

namespace kestrel {

inline constexpr Point PolarPlotCenter = {6000, 6500};

/// Spokes, the station's mark, the trace in the colour of its hours, the same trace about five times as large
/// where it lies inside the plot box, and the bearings. Returns false, and leaves the traces out and a note
/// in their place, when all values are 0.
bool DrawPolarPlot(Canvas& canvas, float aspectRatio, Hours hours, const PatternValues& values);

/// The plot of an antenna that is not known: spokes, mark, bearings and the words "Pattern not known".
void DrawUnknownPattern(Canvas& canvas, float aspectRatio);

/// The colours of the traces, each under its name.
void DrawPlotLegend(Canvas& canvas);

}  // namespace kestrel
