#pragma once

#include <optional>
#include <string>

#include "core/Position.h"
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

/// What a context map shows.
struct ContextView {
  Position Station;
  Position Home;
  int Unit = 0;  ///< of the scale bar, as `SessionState::DistanceUnit`
  float Zoom = 1;
};

/// Draws coasts and borders around the station in a frame, with the station's mark, home's where it lies
/// within, and a scale bar; 1.6 twips to the kilometre at zoom 1. What was drawn before is covered. An
/// outline file that cannot be read is named on the map.
void DrawContextMap(Canvas& canvas, const DataFolder& folder, const ContextView& view);

/// The same in words, for those who do not see it.
std::string ContextMapWords(const ContextView& view);

/// The place at a point within the frame; nothing elsewhere and beyond the antipodes.
std::optional<Position> PlaceOnContextMap(const ContextView& view, Point at);

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
