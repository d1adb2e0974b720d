#pragma once

#include <vector>

#include "map/Canvas.h"

namespace kestrel {

class MapSurface;

/// The records that a place of the map belongs to: those whose stations stand within TipReach; where none
/// does, those whose label lies there; else those whose pattern's line runs there.
std::vector<StationMark> RecordsAt(const MapSurface& map, Point place);

/// The record whose station, or label, is nearest to the place within the same reach; nullptr: none. Holds as
/// long as the drawing.
const StationMark* RecordToOpenAt(const MapSurface& map, Point place);

}  // namespace kestrel
