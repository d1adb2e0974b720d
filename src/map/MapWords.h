#pragma once

#include <optional>
#include <span>
#include <string>

#include "core/Moment.h"
#include "core/SessionState.h"
#include "map/Canvas.h"

namespace kestrel {

/// What the main map shows in words, for those who do not see it: "620 kHz with adjacent channels, 12
/// stations, all hours; around home, Plano TX, at 33.243 N, 96.541 W; 4500 km across". `marks` are those of
/// the stations drawn; at a moment its time stands in the place of the hours.
std::string MapWords(const SessionState& state, std::span<const StationMark> marks, double kilometresAcross,
                     std::optional<Moment> moment);

}  // namespace kestrel
