#pragma once

#include <string>
#include <vector>

#include "core/SessionState.h"
#include "data/DataFolder.h"
#include "map/Canvas.h"
#include "map/MapProjection.h"
#include "pattern/Pattern.h"

// One channel's stations on the main map, each with the pattern of its antenna.

namespace kestrel {

/// Width of a pattern's outline in pixels. Coasts, borders and the patterns of adjacent channels are 1 wide;
/// those of the channel chosen stand out among them.
inline constexpr float PatternLineWidth = 1.5F;

/// What plotting a channel met.
struct ChannelOutcome {
  bool FileMissing = false;
  std::vector<std::string> Notes;  ///< what the reader left out
};

/// Draws every record of the channel that the hours filter lets through: its pattern in the colour of its
/// hours, or in the adjacent colour when adjacents are shown and this is not the selected channel, and one
/// label for each call sign and place. A channel outside 530 to 1700 kHz draws nothing.
ChannelOutcome PlotChannel(Canvas& canvas, const DataFolder& folder, const SessionState& state,
                           const MapProjection& projection, float plotFrequency);

/// How a record's pattern is drawn.
struct PatternStyle {
  ColorValue Color = 0;
  float Factor = 0;  ///< size factor of the hours
};

/// Draws the outline of a pattern around a station: 180 vertices, each two degrees, the value of azimuth k at
/// bearing k - 1.
void DrawPattern(Canvas& canvas, const SessionState& state, Point station, const PatternStyle& style,
                 const PatternValues& values);

}  // namespace kestrel
