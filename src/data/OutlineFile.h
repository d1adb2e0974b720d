#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "core/Lines.h"
#include "data/VertexLayout.h"

// The map outline files "REGION2.dat" and "STATES.dat". docs/formats/outline-files.md describes them.

namespace kestrel {

/// No outline has more; a file of ordinary lines that is as long as a file may be has fewer.
inline constexpr std::size_t MaxVertices = 2'000'000;

/// Vertices of an outline file's polylines.
struct Outline {
  std::vector<float> Latitude;           ///< degrees, north positive
  std::vector<float> Longitude;          ///< degrees EAST, as the file holds them, 0 to 360
  std::vector<std::size_t> PenUpBefore;  ///< ascending; no line is drawn to the vertex of that index (their
                                         ///< count: to the next read)
};

/// Whether lines that begin with > < ! * ' / or \ are passed over, or read as vertices like any other.
enum class CommentLines { Skip, Read };

/// Reads the vertices of an outline file piece by piece, so that a long file is never in memory as numbers
/// as a whole, up to the end mark -2000 or the end of the file. Empty lines are skipped; a vertex of -100
/// -100 is a pen-up mark. Reading ends after MaxVertices vertices or pen-up marks. A malformed number reads
/// as its leading part or 0; all are finite, of whatever size.
class OutlineReader {
 public:
  /// The bytes must outlive the reader.
  explicit OutlineReader(std::string_view bytes, CommentLines comments = CommentLines::Read);

  /// The next vertices and marks, at most 2048; nullptr when there are no more. They hold until the next
  /// call.
  const Outline* Next();

  /// Whether the end mark was met.
  bool Ended() const { return ended_; }

 private:
  /// Reads the next lines as far as they are laid out alike, at most `most`; returns how many.
  std::size_t ReadLinesAlike(std::size_t most);
  void ReadAnyLine(std::string_view line);

  LineReader lines_;
  const CommentLines comments_;
  std::optional<VertexLayout> layout_;  // of the last line that has one
  Outline piece_;
  std::size_t count_ = 0;  // of vertices and marks read
  bool ended_ = false;
};

/// Where the first line "-100 -100" after `from` begins; the bytes' size when there is none. What stands
/// from there on can be read, and drawn, as an outline of its own.
std::size_t FindPenUp(std::string_view bytes, std::size_t from);

}  // namespace kestrel
