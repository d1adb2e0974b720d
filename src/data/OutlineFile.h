#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

// The map outline files "REGION2.dat" and "STATES.dat". docs/formats/outline-files.md describes them.

namespace kestrel {

/// No outline has more; a file of ordinary lines that is as long as a file may be has fewer.
inline constexpr std::size_t MaxVertices = 2'000'000;

/// The polylines of an outline file.
struct Outline {
  std::vector<float> Latitude;   ///< degrees, north positive
  std::vector<float> Longitude;  ///< degrees EAST, as the file holds them, 0 to 360
  std::vector<std::size_t>
      PenUpBefore;     ///< ascending; no line is drawn to the vertex of that index (its size: at the end)
  bool Ended = false;  ///< whether the end mark was met
};

/// Whether lines that begin with > < ! * ' / or \ are passed over, or read as vertices like any other.
enum class CommentLines { Skip, Read };

/// Reads vertices up to the end mark -2000 or the end of the file. Empty lines are skipped; a vertex of
/// -100 -100 is a pen-up mark. Reading ends behind MaxVertices vertices or pen-up marks. A malformed
/// number reads as its leading part or 0; all are finite, of whatever size.
Outline ReadOutline(std::string_view bytes, CommentLines comments = CommentLines::Read);

/// Where the first line "-100 -100" behind `from` begins; the bytes' size when there is none. What stands
/// from there on can be read, and drawn, as an outline of its own.
std::size_t FindPenUp(std::string_view bytes, std::size_t from);

}  // namespace kestrel
