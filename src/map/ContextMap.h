#pragma once

#include "data/DataFolder.h"
#include "map/Canvas.h"
#include "map/Sheet.h"

namespace kestrel {

/// The size of the context map's own drawing area, twips; its places are shares of it.
inline constexpr float ContextMapWidth = 12000;
inline constexpr float ContextMapHeight = 9000;

/// The part of the drawing area that holds the framed map and a margin.
inline constexpr SheetArea ContextMapArea = {0.035F * ContextMapWidth, 0.035F * ContextMapHeight,
                                             0.63F * ContextMapWidth, 0.63F * ContextMapHeight};

/// Draws coasts and borders around the station in a frame, with the station's mark, 1.6 twips to the
/// kilometre at zoom 1. Latitude north, longitude WEST positive. What was drawn before is covered. An outline
/// file that cannot be read is named on the map.
void DrawContextMap(Canvas& canvas, const DataFolder& folder, float latitude, float longitude, float zoom);

/// The context map's zoom: powers of two from 0.25 to 8. The way that leads past a limit is closed only when
/// it is taken at the limit, one press after the limit was reached.
struct ContextZoom {
  float Scale = 1;
  bool MayZoomIn = true;
  bool MayZoomOut = true;

  void ZoomIn();
  void ZoomOut();
};

}  // namespace kestrel
