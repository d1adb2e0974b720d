#pragma once

#include "core/SessionState.h"
#include "data/DataFolder.h"
#include "map/Canvas.h"

// The opening screen: its background and the overview map of Region 2 around 39 N, 97 W.

namespace kestrel {

/// Colour of the background's row `y` (from 1) on a screen of `height` rows: near black at the top, full blue
/// in the lower sixth. REQUIRES: height above 0.
ColorValue OpeningBackground(double y, double height);

/// Coasts, state borders and the stations of the six local channels. A file that cannot be read is left out.
void DrawOverviewMap(Canvas& canvas, const DataFolder& folder);

}  // namespace kestrel
