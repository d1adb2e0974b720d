#pragma once

#include <string>
#include <vector>

#include "core/SessionState.h"
#include "map/Canvas.h"

// The main map in words, for the line under it.

namespace kestrel {

/// "42.350 N, 71.050 W", rounded.
std::string PlaceWords(const Position& place);

/// What lies at a place of the sheet: its latitude and longitude, distance and bearing from home, and the
/// bearing of home as seen from there. Empty beyond the point opposite to home.
///
///     "42.350 N, 71.050 W    2470.3 km, 61.2 deg from home, which lies at 259.9 deg from there"
std::string MouseWords(const SessionState& state, Point place);

/// How many stations the marks are of; one at two places counts twice, its records do not.
std::size_t StationCount(const std::vector<StationMark>& marks);

/// "44 stations    1850 km across": `width` is what the surface shows of the sheet, in twips.
std::string ShownWords(const SessionState& state, std::size_t stations, float width);

}  // namespace kestrel
