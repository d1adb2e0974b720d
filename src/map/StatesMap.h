#pragma once

#include <optional>

#include "core/Distance.h"
#include "core/SessionState.h"
#include "data/DataFolder.h"
#include "map/Sheet.h"

// The plain map on which home is picked with the mouse. Degrees are straight and even on it: 160 twips per
// degree of longitude, 200 per degree of latitude.

namespace kestrel {

/// What the map shows at least: 140 to 50 degrees west, 60 to 10 degrees north.
inline constexpr SheetArea StatesMapArea = {-1100, -500, 14400, 10000};

/// The strip with the readout, on a surface of its own.
inline constexpr SheetArea StatesReadoutArea = {0, 7600, 12000, 400};

/// Where a place lies on the sheet; longitude in degrees EAST, 0 to 360, as the outline files have it.
Point PlaceOnStatesMap(float latitude, float longitudeEast);

/// The position under the mouse: latitude limited to 10 to 70, longitude to 30 to 170 west. It lies an eighth
/// of a degree east of what the map shows there.
Position PointedPosition(Point at);

/// The position that a click takes: latitude limited to 0 to 80, longitude to 30 to 170 west, both cut to
/// three decimals.
Position ClickedPosition(Point at);

/// Draws the grid, then "REGION2.dat" and "STATES.dat", then home's mark; a file that cannot be read draws
/// nothing.
void DrawStatesMap(Canvas& canvas, const DataFolder& folder, const Position& home);

/// Draws the readout: the position under the mouse, when there is one, and home.
void DrawStatesReadout(Canvas& canvas, std::optional<Point> mouse, const SessionState& state);

}  // namespace kestrel
