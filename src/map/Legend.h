#pragma once

#include <optional>
#include <string>

#include "core/Moment.h"
#include "core/SessionState.h"
#include "map/Canvas.h"

// The panel in the map's lower left corner and the banner in its upper left one.

namespace kestrel {

/// The legend panel: the colours of the hours, channel, home, map and pattern scale. Boxes widen to their
/// text. On a map of a moment that stands in place of the hours' filter.
void DrawLegend(Canvas& canvas, const SessionState& state, std::optional<Moment> moment = {});

/// The banner that names the hours shown; nothing when all are.
void DrawHoursBanner(Canvas& canvas, HoursFilter filter);

/// "No station file for 1230 kHz", under the banner's place.
void DrawMissingFileNotice(Canvas& canvas, float frequency);

/// The map scale as the legend shows it: 1 at 156.25 twips per 75 km, cut to 7 characters.
std::string MapScaleText(float scaleFactor);

/// The pattern scale as the legend shows it: 1 at a pattern size of 0.25.
std::string PatternScaleText(float patternSize);

}  // namespace kestrel
