#pragma once

#include <algorithm>
#include <limits>
#include <span>

#include "map/Canvas.h"

// The sheet that the main map is drawn on, in twips. Home stands at a fixed place of it.

namespace kestrel {

inline constexpr float SheetWidth = 12000;
inline constexpr float SheetHeight = 9500;
inline constexpr Point HomeOnSheet = {6000, 4500};

/// No coordinate lies farther out; places beyond are drawn at this limit.
inline constexpr float CoordinateLimit = 30000;

/// The point with both coordinates limited to -30000 to 30000.
inline Point Clamped(Point point) {
  return {std::clamp(point.x, -CoordinateLimit, CoordinateLimit),
          std::clamp(point.y, -CoordinateLimit, CoordinateLimit)};
}

/// Where the sheet lies on a surface: scaled uniformly to fit, centred; what the surface shows beyond the
/// sheet's edge shows more of the map.
struct SheetFit {
  float Scale = 1;  ///< surface units per twip
  float Left = 0;   ///< of the sheet's left edge, in surface units
  float Top = 0;

  Point ToSurface(Point sheet) const { return {Left + sheet.x * Scale, Top + sheet.y * Scale}; }
  Point ToSheet(Point surface) const { return {(surface.x - Left) / Scale, (surface.y - Top) / Scale}; }
};

/// What lies between two corners of a sheet, its edges included.
struct SheetBox {
  Point TopLeft;
  Point BottomRight;

  static SheetBox Everything() {
    constexpr float kFar = std::numeric_limits<float>::infinity();
    return {{-kFar, -kFar}, {kFar, kFar}};
  }

  bool Touches(const SheetBox& other) const {
    return TopLeft.x <= other.BottomRight.x && other.TopLeft.x <= BottomRight.x &&
           TopLeft.y <= other.BottomRight.y && other.TopLeft.y <= BottomRight.y;
  }
};

/// The smallest box around points; coordinates that are no numbers do not count. Around none it is one that
/// touches nothing but Everything().
SheetBox BoxAround(std::span<const Point> points);

/// A part of a sheet, in twips.
struct SheetArea {
  float Left = 0;
  float Top = 0;
  float Width = SheetWidth;
  float Height = SheetHeight;
};

/// Fits a part of the sheet, all of it by default, to a surface. REQUIRES: all lengths above 0.
SheetFit FitSheet(float surfaceWidth, float surfaceHeight, const SheetArea& area = {});

}  // namespace kestrel
