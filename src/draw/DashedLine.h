#pragma once

#include <cmath>
#include <span>
#include <vector>

#include "map/Canvas.h"

namespace kestrel {

/// Lengths of a dash and of the gap after it, in turn, in pixels of an ordinary screen; none for a whole
/// line.
std::span<const float> DashLengths(Dash dash);

/// Calls `draw(std::span<const Point>)` for each dash of a polyline on a surface. The lengths are pairs as
/// above, times `pixelSize`.
template <typename Draw>
void ForEachDash(std::span<const Point> line, std::span<const float> lengths, float pixelSize, Draw draw) {
  std::vector<Point> dash = {line.front()};
  std::size_t part = 0;
  float left = lengths[0] * pixelSize;  // of the present dash or gap
  const auto endPart = [&](Point at) {
    if (part % 2 == 0 && dash.size() > 1) draw(std::span<const Point>(dash));
    dash.assign(1, at);
    part = (part + 1) % lengths.size();
    left = lengths[part] * pixelSize;
  };
  for (std::size_t i = 1; i < line.size(); ++i) {
    Point from = line[i - 1];
    float length = std::hypot(line[i].x - from.x, line[i].y - from.y);
    while (length > left) {
      const float share = left / length;
      from = {from.x + share * (line[i].x - from.x), from.y + share * (line[i].y - from.y)};
      length -= left;
      dash.push_back(from);
      endPart(from);
    }
    left -= length;
    dash.push_back(line[i]);
  }
  if (part % 2 == 0 && dash.size() > 1) draw(std::span<const Point>(dash));
}

}  // namespace kestrel
