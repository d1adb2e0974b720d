#pragma once

#include <QImage>
#include <QPointF>
#include <cstdint>
#include <span>
#include <vector>

namespace kestrel {

/// How much of each pixel of a picture is inked, 0 to 255, before a colour is laid through it.
///
/// A line covers, in each column that it crosses (in each row, when it is steep), its width of that column,
/// spread over the pixels that it touches, and as much of its first and last column as it reaches into. Where
/// lines meet their shares add up to the whole pixel and no further, so joints have neither gaps nor dark
/// points, and a polyline gives the same ink whole or in pieces.
///
/// Coordinates are those of the whole picture; the mask holds the rows from `top` on, and each pixel comes
/// out the same whichever rows are held. Any coordinates may be given, also such as are no number.
class InkMask {
 public:
  InkMask(QSize size, int top);

  void AddPolyline(std::span<const QPointF> points, float width);
  void AddDisc(QPointF center, float radius);
  /// A square of one pixel.
  void AddPoint(QPointF center);

  /// Lays `color` through the mask on the image, which holds the same rows, and clears the mask.
  void Lay(QRgb color, QImage& image);

 private:
  struct Rectangle {
    int left, top, right, bottom;  // of the mask, right and bottom outside
  };

  /// Whether a point lies on the picture or so near that its ink needs no look at the borders.
  bool IsNear(float x, float y) const {
    return x >= nearLeft_ && x <= nearRight_ && y >= nearTop_ && y <= nearBottom_;
  }
  void AddSegment(float x0, float y0, float x1, float y1, float width);
  void Widen(float x0, float y0, float x1, float y1, float reach);
  void Clear();

  int width_, height_, top_, stride_;
  float nearLeft_, nearRight_, nearTop_, nearBottom_;
  std::vector<std::uint8_t> ink_;  // with a border on all sides
  Rectangle dirty_;
};

}  // namespace kestrel
