#pragma once

#include <QImage>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "draw/WideLine.h"
#include "map/Canvas.h"

namespace kestrel {

/// How much of each pixel of a picture is inked, 0 to 255, before a colour is laid through it.
///
/// A line covers, in each column that it crosses (in each row, when it is steep), its width of that column,
/// spread over the pixels that it touches, and as much of its first and last column as it reaches into. Where
/// lines meet their shares add up to the whole pixel and no further, so joints have neither gaps nor dark
/// points, and a polyline gives the same ink whole or in pieces. In 256ths: with the lower edge at e in the
/// middle of the column, the line w wide and a share s of the column reached, pixel k is given
///
///     s / 256 * |[k, k + 1] in common with [e, e + w]|
///
/// which the code takes from the pixel of the edge on, each the room that it has of what is left of w.
///
/// Lines touch few of a picture's pixels: the mask knows in which eights of each row there may be ink, and
/// nothing else is looked at when the colour is laid.
///
/// Coordinates are those of the whole picture; the mask holds the rows from `top` on, and each pixel comes
/// out the same whichever rows are held. Any coordinates may be given; a line with an end that is no number,
/// or two million pixels away (WideLine::Farthest), is left out.
class InkMask {
 public:
  /// Lines farther than this many pixels from the picture leave no ink on it.
  static constexpr int LongestReach = 48;

  /// Makes the mask, empty, one for the rows from `top` on of a picture, as many as the size has.
  void Reset(QSize size, int top);

  /// Points and width in pixels; a line of no width leaves no ink, one wider than WideLine::Widest is drawn
  /// so wide.
  void AddPolyline(std::span<const Point> points, float width);
  void AddDisc(Point center, float radius);
  /// A square of one pixel.
  void AddPoint(Point center);

  /// Lays `color` through the mask on the image, which holds the same rows, and clears the mask.
  void Lay(QRgb color, QImage& image);

 private:
  /// The columns of a line that the mask holds, the rows of one, and how far in memory it is to the next.
  struct Axes {
    int firstColumn, lastColumn, firstRow, lastRow;
    std::uint8_t* origin;  // of column and row 0
    std::ptrdiff_t alongStep, acrossStep;
  };

  void Ink(const WideLine& line);
  /// The columns from one to another, both of which the mask holds.
  void InkPiece(const WideLine& line, const Axes& axes, int first, int last);
  /// The marks of a word of a row.
  std::uint64_t& Touched(int row, int word) {
    return touched_[static_cast<std::size_t>(row) * static_cast<std::size_t>(words_) +
                    static_cast<std::size_t>(word)];
  }
  /// Notes that there may be ink in a rectangle of the mask, its last column and row included.
  void Touch(int left, int top, int right, int bottom);
  /// Lays the eights of a word on their line of the picture; only clears them where there is none.
  void LayWord(QRgb color, int row, int word, std::uint64_t eights, QRgb* line);

  int width_ = 0, height_ = 0, top_ = 0;
  int rows_ = 0;                   // held, those of the border included
  int stride_ = 0;                 // of the rows, in pixels
  int words_ = 0;                  // of touched_, for each row
  std::array<Axes, 2> axes_ = {};  // of lines that are not steep and of those that are
  std::vector<std::uint8_t> ink_;
  std::vector<std::uint64_t> touched_;       // by row, a bit for each eight pixels
  int firstTouched_ = 0, lastTouched_ = -1;  // rows
};

}  // namespace kestrel
