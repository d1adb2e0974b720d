#pragma once

#include <QPolygonF>
#include <QRectF>
#include <optional>
#include <span>

#include "draw/DashedLine.h"
#include "draw/ThinnedRun.h"
#include "map/MapLook.h"
#include "map/Sheet.h"

namespace kestrel {

/// Width in pixels of the line around letters whose rim is white; half of it lies outside of them.
inline constexpr double RimWidth = 2.5;

/// How a sheet comes onto a surface (a window, a picture, a page): where it lies, how large a pixel is there,
/// and from which size on text can be read.
struct SurfaceRules {
  SheetFit Fit;
  QRectF Area;                 ///< what the surface shows, in its units
  double PixelSize = 1;        ///< units of an ordinary screen's pixel: line widths are multiples of it
  double SmallestXHeight = 7;  ///< in pixels; text below it grows; 0: text keeps its size
  double Thinning = 0.5;       ///< vertices closer together than this many pixels are joined into one, those
                               ///< off a straight line by less than a fifth of it left out: 1.2 times at most
  MapLook Look;
  std::optional<QRectF> Frame;  ///< whose corners the panels of corners keep to; nothing: the sheet's
};

/// The rules for a surface that `area` of the sheet is fitted to.
SurfaceRules RulesFor(const QRectF& surface, const SheetArea& area = {}, double pixelSize = 1);

/// Shows another part of the sheet, `by` twips farther right and down, to the nearest pixel. Panels of
/// corners stay where they are.
void MoveSheet(SurfaceRules& rules, Point by);

/// How far the sheet can be moved towards `by` with the surface showing nothing beyond the coordinate limit,
/// or no more of it than before. REQUIRES: the rules are those before moving.
Point MoveWithinLimits(const SurfaceRules& rules, Point by);

/// Takes places and lengths of the sheet to the surface, panels included. Culling and thinning happen here,
/// when a figure reaches its surface.
class SurfaceView {
 public:
  explicit SurfaceView(const SurfaceRules& rules)
      : rules_(rules), fit_(rules.Fit), run_(static_cast<float>(rules.Thinning * rules.PixelSize)) {}

  Point At(Point sheet) const { return fit_.ToSurface(panelGrowth_ == 1 ? sheet : Grown(sheet)); }
  double Length(double twips) const { return twips * rules_.Fit.Scale * panelGrowth_; }
  double PixelSize() const { return rules_.PixelSize; }
  const QRectF& Area() const { return rules_.Area; }

  /// Size of a font on the surface, grown where it would be too small to read.
  double FontSize(const Font& font) const;

  /// Baseline start of a text whose top left corner is given. Text that has grown keeps its lower left
  /// corner.
  Point Baseline(Point topLeft, const Font& font) const;

  void BeginPanel(Point anchor, const Font& smallest, PanelPlace place = PanelPlace::OnMap);
  void EndPanel();

  void SetDash(Dash dash);

  /// A box on the surface, its edges on whole pixels: boxes that share an edge leave no seam between them
  /// through which lines shine.
  QRectF Filled(Point corner, Point opposite) const;

  /// Likewise for a line around it, which runs through the middle of pixels.
  QRectF Outlined(Point corner, Point opposite) const;

  /// An outline to be filled, its points on the surface.
  QPolygonF Filled(std::span<const Point> outline) const;

  bool Shows(Point sheet, double radiusTwips) const;

  /// Calls `draw(std::span<const Point>)`, on the surface, for each run of the polyline that may touch the
  /// surface's area, or for each dash of these.
  template <typename Draw>
  void ForEachRun(std::span<const Point> points, Draw draw);

 private:
  double Growth(const Font& font) const;
  /// A place of the present panel, which has grown.
  Point Grown(Point sheet) const;

  SurfaceRules rules_;
  SheetFit fit_;  // the rules', or that of the present panel's corner
  double panelGrowth_ = 1;
  Point panelAnchor_;
  ThinnedRun run_;
  std::span<const float> dash_;  // empty: lines are whole
};

/// The part of a surface that lines may touch, a little larger than what it shows.
struct ClipArea {
  float left, top, right, bottom;

  ClipArea(const QRectF& area, double margin)
      : left(static_cast<float>(area.left() - margin)),
        top(static_cast<float>(area.top() - margin)),
        right(static_cast<float>(area.right() + margin)),
        bottom(static_cast<float>(area.bottom() + margin)) {}

  /// Which sides of the area a point lies beyond, a bit each; a segment whose ends share a bit cannot touch
  /// it.
  int Outside(Point point) const {
    return (point.x < left) | (point.x > right) << 1 | (point.y < top) << 2 | (point.y > bottom) << 3;
  }
};

template <typename Draw>
void SurfaceView::ForEachRun(std::span<const Point> points, Draw draw) {
  const ClipArea area(rules_.Area, 4 * rules_.PixelSize);
  run_.Clear();
  const auto endRun = [&] {
    if (run_.Vertices().size() > 1) {
      if (dash_.empty())
        draw(run_.Vertices());
      else
        ForEachDash(run_.Vertices(), dash_, static_cast<float>(rules_.PixelSize), draw);
    }
    run_.Clear();
  };
  Point previous;
  int previousOutside = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Point point = At(points[i]);
    const int outside = area.Outside(point);
    if (i > 0 && (outside & previousOutside) != 0) {
      endRun();
    } else if (i > 0) {
      if (run_.Vertices().empty()) run_.Begin(previous);
      run_.Add(point, i + 1 == points.size() || outside != 0);
    }
    previous = point;
    previousOutside = outside;
  }
  endRun();
}

}  // namespace kestrel
