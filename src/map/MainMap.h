#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/SessionState.h"
#include "data/DataFolder.h"
#include "map/Canvas.h"
#include "map/ChannelPlot.h"

namespace kestrel {

/// What a drawing of the main map starts from.
enum class MapGround {
  Empty,    ///< coasts, borders and the home mark are drawn first
  AsDrawn,  ///< they are there already, the channel is added on top
};

/// What the stations of a map lie on: coasts, borders, the mark of home, rings. Returns what of the files
/// cannot be read.
std::vector<std::string> DrawMapGround(Canvas& canvas, const DataFolder& folder, const SessionState& state);

/// Draws the main map as the session has it, from its files: outlines and home mark, the current channel, the
/// channels 10 kHz beside it when `AdjacentsShown` is 1, the legend, and the compass when `CompassShown`
/// is 1. Channels outside the band are passed over; when all are, there is no legend. A missing station file
/// of the current channel leaves its notice on the map. Returns what the readers left out, one line each, and
/// files that are there but cannot be read.
std::vector<std::string> DrawMainMap(Canvas& canvas, const DataFolder& folder, const SessionState& state,
                                     MapGround ground = MapGround::Empty);

/// Such notes in one line for a window, one for each file: "Left out: 1030x.dat:17: 14 towers, at most 12
/// (and 2 more); REGION2.dat: is larger than 100 MB". Empty without notes.
std::string NotesLine(const std::vector<std::string>& notes);

/// The channels that the session shows, the current one first; none outside the band.
std::vector<float> ShownChannels(const SessionState& state);

/// Calls `use` for each of them. Returns whether the current channel's file is missing, and the notes of all.
ChannelOutcome ForShownChannels(const SessionState& state,
                                const std::function<ChannelOutcome(float channel)>& use);

}  // namespace kestrel
