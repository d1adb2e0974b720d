#include "map/Sheet.h"

#include <algorithm>

namespace kestrel {

Point Clamped(Point point) {
  return {std::clamp(point.x, -CoordinateLimit, CoordinateLimit), std::clamp(point.y, -CoordinateLimit, CoordinateLimit)};
}

SheetFit FitSheet(float surfaceWidth, float surfaceHeight, float sheetWidth, float sheetHeight) {
  const float scale = std::min(surfaceWidth / sheetWidth, surfaceHeight / sheetHeight);
  return {scale, (surfaceWidth - sheetWidth * scale) / 2, (surfaceHeight - sheetHeight * scale) / 2};
}

}  // namespace kestrel
