#include "map/Sheet.h"

#include <algorithm>
#include <cstring>

namespace kestrel {

SheetFit FitSheet(float surfaceWidth, float surfaceHeight, const SheetArea& area) {
  const float scale = std::min(surfaceWidth / area.Width, surfaceHeight / area.Height);
  return {scale, (surfaceWidth - area.Width * scale) / 2 - area.Left * scale,
          (surfaceHeight - area.Height * scale) / 2 - area.Top * scale};
}

SheetBox BoxAround(std::span<const Point> points) {
  // Two points at a time, their x and y beside each other: written with vectors, since the compiler takes no
  // minimum of floats for one whose order does not matter.
  using TwoPoints [[gnu::vector_size(16)]] = float;
  static_assert(sizeof(TwoPoints) == 2 * sizeof(Point));
  constexpr float kFar = std::numeric_limits<float>::infinity();
  TwoPoints low = {kFar, kFar, kFar, kFar};
  TwoPoints high = -low;
  const auto add = [&](TwoPoints two) {
    low = two < low ? two : low;
    high = two > high ? two : high;
  };
  std::size_t i = 0;
  for (; i + 1 < points.size(); i += 2) {
    TwoPoints two;
    std::memcpy(&two, &points[i], sizeof two);
    add(two);
  }
  if (i < points.size()) add(TwoPoints{points[i].x, points[i].y, points[i].x, points[i].y});
  return {{std::min(low[0], low[2]), std::min(low[1], low[3])},
          {std::max(high[0], high[2]), std::max(high[1], high[3])}};
}

}  // namespace kestrel
