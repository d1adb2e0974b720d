#pragma once

#include "core/Position.h"
#include "core/SessionState.h"

class QPainter;

namespace kestrel {

class MapSurface;

/// Paints over the map what is chosen beside it: a ring around the station, the great circle from home to it,
/// straight on this map, and distance and bearing, where the line leaves the window if the station is not
/// seen.
void PaintChosen(QPainter& painter, const MapSurface& map, const SessionState& state,
                 const Position& station);

}  // namespace kestrel
