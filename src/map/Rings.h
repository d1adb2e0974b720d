#pragma once

#include "core/SessionState.h"
#include "map/Canvas.h"

// How far things are on the main map, in the listener's unit.

namespace kestrel {

/// Round circles of round distances around home, as many as the map's range holds, each labelled in four
/// directions between the main ones. A layer of its own.
void DrawRings(Canvas& canvas, const SessionState& state);

/// A bar of a round distance in the lower right corner. A layer of its own.
void DrawScaleBar(Canvas& canvas, const SessionState& state);

/// "200 km", "5 mi", ".5 km".
std::string RoundDistanceText(float distance, const SessionState& state);

/// The twips of the map that a kilometre, or a mile where the listener wants miles, comes out as.
double TwipsPerUnit(const SessionState& state);

}  // namespace kestrel
