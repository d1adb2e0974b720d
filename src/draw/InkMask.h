#pragma once

#include <QImage>
#include <cstdint>
#include <span>
#include <vector>

#include "map/Canvas.h"

namespace kestrel {

/// How much of each pixel of a picture is inked, 0 to 255, before a colour is laid through it.
///
/// A line covers, in each column that it crosses (in each row, when it is steep), its width of that column,
/// spread over the pixels that it touches, and as much of its first and last column as it reaches into. Where
/// lines meet their shares add up to the whole pixel and no further, so joints have neither gaps nor dark
/// points, and a polyline gives the same ink whole or in pieces.
///
/// Lines touch few of a picture's pixels: the mask knows in which blocks of each row there may be ink, and
/// nothing else is looked at when the colour is laid.
///
/// Coordinates are those of the whole picture; the mask holds the rows from `top` on, and each pixel comes
/// out the same whichever rows are held. Any coordinates may be given, also such as are no number.
class InkMask {
 public:
  InkMask(QSize size, int top);

  /// Whether the mask is one for these rows.
  bool Fits(QSize size, int top) const { return size == QSize(width_, height_) && top == top_; }

  void AddPolyline(std::span<const Point> points, float width);
  void AddDisc(Point center, float radius);
  /// A square of one pixel.
  void AddPoint(Point center);

  /// Lays `color` through the mask on the image, which holds the same rows, and clears the mask.
  void Lay(QRgb color, QImage& image);

 private:
  /// Inks a line of a width, both ends in pixels from the border's corner; returns how far its ink reaches
  /// to its sides, 0 where there is none.
  float AddSegment(Point from, Point to, float width);
  /// Notes that there may be ink in a rectangle, which may reach beyond the mask.
  void Touch(float left, float top, float right, float bottom);
  /// Lays a block on its line of the image.
  void LayBlock(int row, int block, QRgb color, QRgb* line);

  int width_, height_, top_;
  int rows_;        // held, those of the border included
  int blockShift_;  // a block has 1 << blockShift_ pixels, a row at most 64 blocks
  int stride_;      // of the rows, in whole blocks
  // Places whose ink needs no look at the borders, in pixels from the border's corner.
  float nearLeft_, nearRight_, nearTop_, nearBottom_;
  std::vector<std::uint8_t> ink_;
  std::vector<std::uint64_t> touched_;   // by row, a bit for each block
  int firstTouched_, lastTouched_ = -1;  // rows
};

}  // namespace kestrel
