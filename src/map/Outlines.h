#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/DataFolder.h"
#include "data/OutlineFile.h"
#include "map/Canvas.h"
#include "map/MapProjection.h"

// The coasts and borders of the main map, and the mark of home.

namespace kestrel {

/// Joins the vertices of an outline, which come piece by piece, to strokes. The pen is lifted at pen-up
/// marks, where a vertex has no position, and where two vertices lie more than 2000 twips apart in x or y, so
/// that a line which leaves the map or wraps is not drawn across it. A stroke of many thousand vertices comes
/// in several, each beginning where the one before ends.
class VertexJoiner {
 public:
  using DrawStroke = std::function<void(std::span<const Point>)>;
  explicit VertexJoiner(DrawStroke draw) : draw_(std::move(draw)) {}

  /// Joins the next vertices, which lie at `points`, and brings these within the coordinate range. A step is
  /// measured from a vertex brought within it. REQUIRES: a point for each vertex.
  void Add(const Outline& piece, std::span<Point> points);
  /// Draws what is left.
  void End();

 private:
  /// Whether all of the points, between which no mark stands, belong to the stroke begun.
  bool GoesOn(std::span<const Point> points) const;
  /// Ends the strokes that end among such points; returns what goes on.
  std::span<const Point> Join(std::span<Point> points);
  void EndStroke(std::span<const Point> rest);

  DrawStroke draw_;
  std::vector<Point> begun_;  // of a stroke that the next piece may go on with
};

/// Draws the outline that the bytes of a file hold, its vertices projected and joined. The two halves of a
/// long one are read at the same time.
void DrawOutline(Canvas& canvas, std::string_view bytes, const MapProjection& projection);

/// Draws "STATES.dat", the home mark and "REGION2.dat", each in its colour. A file that is missing or cannot
/// be read draws nothing; returns why one that is there cannot, a line for each.
std::vector<std::string> DrawOutlineFiles(Canvas& canvas, const DataFolder& folder,
                                          const MapProjection& projection);

}  // namespace kestrel
