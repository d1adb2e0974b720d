#pragma once

#include <functional>

#include "core/SessionState.h"

// How colours come out on a black-and-white printer.

namespace kestrel {

/// What a colour is drawn in instead.
struct Ink {
  ColorValue Color = 0;
  float WidthFactor = 1;  ///< of lines
};

using Recoloring = std::function<Ink(ColorValue)>;

/// Greys for the maps. The session's pattern colours become greys of their own, the hours told apart by width
/// too: night thin and black, unlimited thick and dark, day thin and grey, critical thick and grey, adjacent
/// thick and light. White stays white; any other colour becomes a grey of its brightness, dark enough to be
/// seen.
Recoloring GreysOf(const SessionState& state);

/// The same for the station page, whose traces have colours of their own.
Recoloring StationPlotGreys();

}  // namespace kestrel
