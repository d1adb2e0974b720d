#pragma once

#include "data/StationFile.h"
#include "map/Canvas.h"

namespace kestrel {

inline constexpr Point TowerLayoutCenter = {10200, 6500};

/// The towers seen from above, north up, with a ring at each 90 electrical degrees of spacing up to 360. The
/// first tower stands out. REQUIRES: the record's positions count from the reference point, as ComputePattern
/// leaves them.
void DrawTowerLayout(Canvas& canvas, float aspectRatio, const StationRecord& record);

/// The rings alone, for an antenna whose towers are not known.
void DrawSpacingRings(Canvas& canvas, float aspectRatio);

}  // namespace kestrel
