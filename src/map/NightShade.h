#pragma once

#include <vector>

#include "core/Moment.h"
#include "core/Position.h"
#include "map/Canvas.h"

// The night side of the earth on the main map.

namespace kestrel {

/// Fills, for what is drawn later to lie on, "twilight", where the sun's elevation is below SunriseElevation,
/// and on it "night", where civil twilight has ended (TwilightElevation).
///
/// The edge of such a part is the circle of places at a constant arc from the one that has the sun overhead.
/// It is walked in that place's directions, so it holds on every date, equinoxes and poles included; a
/// formula for latitude by longitude has no such line at an equinox. The part that holds the point opposite
/// to home, which the projection draws as a circle, reaches from that circle to the edge.
///
/// Scale in twips per 75 km. REQUIRES: a home of finite numbers, a scale above 0, a moment of the years 1950
/// to 2100.
void DrawNightShade(Canvas& canvas, const Position& home, float scaleFactor, Moment moment);

}  // namespace kestrel
