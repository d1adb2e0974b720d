#include "map/Sheet.h"

#include <algorithm>

namespace kestrel {

SheetFit FitSheet(float surfaceWidth, float surfaceHeight, const SheetArea& area) {
  const float scale = std::min(surfaceWidth / area.Width, surfaceHeight / area.Height);
  return {scale, (surfaceWidth - area.Width * scale) / 2 - area.Left * scale,
          (surfaceHeight - area.Height * scale) / 2 - area.Top * scale};
}

SheetBox BoxAround(std::span<const Point> points) {
  constexpr float kFar = std::numeric_limits<float>::infinity();
  SheetBox box = {{kFar, kFar}, {-kFar, -kFar}};
  // Written so that a coordinate that is no number changes nothing.
  for (const Point point : points) {
    box.TopLeft = {std::min(box.TopLeft.x, point.x), std::min(box.TopLeft.y, point.y)};
    box.BottomRight = {std::max(box.BottomRight.x, point.x), std::max(box.BottomRight.y, point.y)};
  }
  return box;
}

}  // namespace kestrel
