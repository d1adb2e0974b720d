#include "map/Sheet.h"

#include <algorithm>

namespace kestrel {

SheetFit FitSheet(float surfaceWidth, float surfaceHeight, const SheetArea& area) {
  const float scale = std::min(surfaceWidth / area.Width, surfaceHeight / area.Height);
  return {scale, (surfaceWidth - area.Width * scale) / 2 - area.Left * scale,
          (surfaceHeight - area.Height * scale) / 2 - area.Top * scale};
}

}  // namespace kestrel
