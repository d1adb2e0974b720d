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

// Coasts and borders, and the main map's mark of home.

namespace kestrel {

/// What drawing outlines has to know of a map.
struct OutlinePen {
  /// Puts the places on the sheet of a piece's vertices into the points, of which there are as many; NaN for
  /// a vertex to which nothing is drawn.
  std::function<void(const Outline& piece, std::span<Point> points)> Place;
  Point LongestStep = {2000, 2000};  ///< twips; vertices farther apart in x or in y are not joined
  CommentLines Comments = CommentLines::Read;
};

/// The pen of a map in this projection.
OutlinePen PenFor(const MapProjection& projection);

/// Joins the vertices of an outline, which come piece by piece, to strokes. The pen is lifted at pen-up
/// marks, where a vertex has no place, and where a step is longer than the longest, so that a line which
/// leaves the map or wraps is not drawn across it. A stroke of many thousand vertices comes in several, each
/// beginning where the one before ends.
class VertexJoiner {
 public:
  using DrawStroke = std::function<void(std::span<const Point>)>;
  VertexJoiner(Point longestStep, DrawStroke draw) : longestStep_(longestStep), draw_(std::move(draw)) {}

  /// Joins the next vertices, which lie at `points`, and brings these within the coordinate range. A step is
  /// measured from a vertex brought within it. REQUIRES: a point for each vertex.
  void Add(const Outline& piece, std::span<Point> points);
  /// Draws what is left.
  void End();

 private:
  bool IsLongStep(Point from, Point to) const;
  /// Whether all of the points, between which no mark stands, belong to the stroke begun.
  bool GoesOn(std::span<const Point> points) const;
  /// Ends the strokes that end among such points; returns what goes on.
  std::span<const Point> Join(std::span<Point> points);
  void EndStroke(std::span<const Point> rest);

  const Point longestStep_;
  DrawStroke draw_;
  std::vector<Point> begun_;  // of a stroke that the next piece may go on with
};

/// Draws the outline that the bytes of a file hold. The two halves of a long one are read at the same time,
/// so that two threads ask the pen for places.
void DrawOutline(Canvas& canvas, std::string_view bytes, const OutlinePen& pen);

/// Draws home's mark, a circle with a cross.
void DrawHomeMark(Canvas& canvas, Point at);

/// Draws "STATES.dat", the home mark and "REGION2.dat", each in its colour. A file that is missing or cannot
/// be read draws nothing; returns why one that is there cannot, a line for each.
std::vector<std::string> DrawOutlineFiles(Canvas& canvas, const DataFolder& folder,
                                          const MapProjection& projection);

}  // namespace kestrel
