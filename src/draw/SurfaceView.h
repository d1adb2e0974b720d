#pragma once

#include <QRectF>
#include <array>
#include <span>
#include <vector>

#include "map/Sheet.h"

namespace kestrel {

/// How a sheet comes onto a surface (a window, a picture, a page): where it lies, how large a pixel is there,
/// and from which size on text can be read.
struct SurfaceRules {
  SheetFit Fit;
  QRectF Area;                 ///< what the surface shows, in its units
  double PixelSize = 1;        ///< units of an ordinary screen's pixel: line widths are multiples of it
  double SmallestXHeight = 7;  ///< in pixels; text below it grows; 0: text keeps its size
  double Thinning = 0.5;       ///< vertices closer together than this many pixels are joined into one
};

/// A run of a polyline's vertices without those that do not show: vertices closer to the one before than a
/// distance, and up to three in turn that stand off the straight line between their neighbours by less than a
/// fifth of it.
class ThinnedRun {
 public:
  explicit ThinnedRun(float closest) : closest_(closest), straight_(closest / 5) {}

  void Clear() { vertices_.clear(); }

  void Begin(Point first) {
    vertices_.assign(1, first);
    passedCount_ = 0;
  }

  /// Adds a vertex; one that `must` be there however close it is.
  void Add(Point point, bool must) {
    const Point last = vertices_.back();
    if (!must && SquaredDistance(last, point) < closest_ * closest_) return;
    if (vertices_.size() > 1 && passedCount_ < passed_.size() && Straight(point)) {
      passed_[passedCount_++] = last;
      vertices_.back() = point;
    } else {
      passedCount_ = 0;
      vertices_.push_back(point);
    }
  }

  std::span<const Point> Vertices() const { return vertices_; }

 private:
  static float SquaredDistance(Point a, Point b) {
    const float x = b.x - a.x, y = b.y - a.y;
    return x * x + y * y;
  }

  /// Whether a line from the last vertex but one to `end` takes the place of those between.
  bool Straight(Point end) const {
    const Point begin = vertices_[vertices_.size() - 2];
    const float x = end.x - begin.x, y = end.y - begin.y;
    const float squared = x * x + y * y;
    const auto along = [&](Point between) {
      const float toX = between.x - begin.x, toY = between.y - begin.y;
      const float off = toX * y - toY * x, way = toX * x + toY * y;
      return off * off <= straight_ * straight_ * squared && way >= 0 && way <= squared;
    };
    bool straight = along(vertices_.back());
    for (std::size_t i = 0; i < passedCount_; ++i) straight = straight && along(passed_[i]);
    return straight;
  }

  float closest_, straight_;
  std::vector<Point> vertices_;
  std::array<Point, 3> passed_;  // between the last two vertices
  std::size_t passedCount_ = 0;
};

/// Takes places and lengths of the sheet to the surface, panels included. Culling and thinning happen here,
/// when a figure reaches its surface.
class SurfaceView {
 public:
  explicit SurfaceView(const SurfaceRules& rules)
      : rules_(rules), run_(static_cast<float>(rules.Thinning * rules.PixelSize)) {}

  Point At(Point sheet) const { return rules_.Fit.ToSurface(panelGrowth_ == 1 ? sheet : Grown(sheet)); }
  double Length(double twips) const { return twips * rules_.Fit.Scale * panelGrowth_; }
  double PixelSize() const { return rules_.PixelSize; }
  const QRectF& Area() const { return rules_.Area; }

  /// Size of a font on the surface, grown where it would be too small to read.
  double FontSize(const Font& font) const;

  /// Baseline start of a text whose top left corner is given. Text that has grown keeps its lower left
  /// corner.
  Point Baseline(Point topLeft, const Font& font) const;

  void BeginPanel(Point anchor, const Font& smallest);
  void EndPanel() { panelGrowth_ = 1; }

  /// A box on the surface, its edges on whole pixels: boxes that share an edge leave no seam between them
  /// through which lines shine.
  QRectF Filled(Point corner, Point opposite) const;

  /// Likewise for a line around it, which runs through the middle of pixels.
  QRectF Outlined(Point corner, Point opposite) const;

  bool Shows(Point sheet, double radiusTwips) const;

  /// Calls `draw(std::span<const Point>)`, on the surface, for each run of the polyline that may touch the
  /// surface's area.
  template <typename Draw>
  void ForEachRun(std::span<const Point> points, Draw draw);

 private:
  double Growth(const Font& font) const;
  /// A place of the present panel, which has grown.
  Point Grown(Point sheet) const;

  SurfaceRules rules_;
  double panelGrowth_ = 1;
  Point panelAnchor_;
  ThinnedRun run_;
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
    if (run_.Vertices().size() > 1) draw(run_.Vertices());
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
