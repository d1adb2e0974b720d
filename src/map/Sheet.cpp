#include "map/Sheet.h"

#include <algorithm>

namespace kestrel {

Point Clamped(Point point) {
  return {std::clamp(point.x, -CoordinateLimit, CoordinateLimit),
          std::clamp(point.y, -CoordinateLimit, CoordinateLimit)};
}

SheetFit FitSheet(float surfaceWidth, float surfaceHeight, const SheetArea& area) {
  const float scale = std::min(surfaceWidth / area.Width, surfaceHeight / area.Height);
  return {scale, (surfaceWidth - area.Width * scale) / 2 - area.Left * scale,
          (surfaceHeight - area.Height * scale) / 2 - area.Top * scale};
}

}  // namespace kestrel
