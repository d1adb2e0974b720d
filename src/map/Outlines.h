#pragma once

#include <span>
#include <string>
#include <vector>

#include "data/DataFolder.h"
#include "data/OutlineFile.h"
#include "map/Canvas.h"
#include "map/MapProjection.h"

// The coasts and borders of the main map, and the mark of home.

namespace kestrel {

inline constexpr ColorValue RegionOutlineColor = 0xCC8888;
inline constexpr ColorValue StatesOutlineColor = 0xDD9999;

/// Projects the outline's vertices and joins them as JoinVertices does.
void DrawOutline(Canvas& canvas, const Outline& outline, const MapProjection& projection);

/// Draws the outline that the bytes of a file hold likewise. The two halves of a long one are read and
/// projected at the same time.
void DrawOutline(Canvas& canvas, std::string_view bytes, const MapProjection& projection);

/// Joins the outline's vertices, which lie at `points`, on the canvas in its present colour. The pen is
/// lifted at pen-up marks, where a vertex has no position, and where two vertices lie more than 2000 twips
/// apart in x or y, so that a line which leaves the map or wraps is not drawn across it. Brings the points
/// within the coordinate range. REQUIRES: there are as many points as vertices.
void JoinVertices(Canvas& canvas, const Outline& outline, std::span<Point> points);

/// Draws "STATES.dat", the home mark and "REGION2.dat", each in its colour. A file that is missing or cannot
/// be read draws nothing; returns why one that is there cannot, a line for each.
std::vector<std::string> DrawOutlineFiles(Canvas& canvas, const DataFolder& folder,
                                          const MapProjection& projection);

}  // namespace kestrel
