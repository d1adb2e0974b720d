#pragma once

#include <string>
#include <string_view>

#include "core/CoordinateText.h"

// What an entry box for a coordinate holds, read and told.

namespace kestrel {

/// Which place a box takes.
enum class EntryOf {
  Home,    ///< held within the limits of ReadHomePosition
  Target,  ///< anywhere west of Greenwich
};

/// What was typed.
struct CoordinateEntry {
  float Degrees = 0;      ///< as the window takes it, north and west positive
  std::string Note;       ///< to be shown at the box: "= 42.35 N", or what is doubtful or wrong
  bool Doubtful = false;  ///< the box wants a second look
  bool Refused = false;   ///< there is no such place for this box, and `Note` says why
};

/// Reads a text in one of the notations of ReadCoordinate exactly, or refuses it: what is no coordinate, what
/// lies east of Greenwich, and for home what lies beyond its limits. Without its letter a longitude is west,
/// whatever its sign. Every other text is a typed number by ParseNumber: it is never refused, its sign as a
/// longitude is dropped, and home's limits hold it. An empty text of a target is 0 without a note.
CoordinateEntry ReadEntry(std::string_view text, Axis axis, EntryOf place);

}  // namespace kestrel
