#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

#include "map/Canvas.h"

namespace kestrel {

/// A straight line of a width, in pixels, as InkMask inks it: column by column, or row by row when it is
/// steep. What is said of columns and the rows of one holds for rows and the columns of one then.
///
/// The edge of a line from (x, y) on, of slope m and w wide across the columns, lies at
///
///     y + (p - x) m - w / 2
///
/// at place p along the columns: in whole numbers, edge_ + 2 p slope_. Lines are short and run in any
/// direction, so the processor mispredicts nearly every branch on them: this holds for the first and the last
/// column, too, p being the middle of what the line reaches of a column.
class WideLine {
 public:
  /// Wider lines are drawn so wide.
  static constexpr float Widest = 30;
  /// No coordinate of a line is as large.
  static constexpr float Farthest = 1 << 21;

  /// Where the line's lower edge lies in a column, and how much of the column the line reaches.
  struct Place {
    int Row;
    int InRow;  // 256ths
    int Share;  // 256ths
  };

  /// REQUIRES: the ends differ and lie nearer than Farthest.
  WideLine(Point from, Point to, float width) {
    steep_ = std::abs(to.y - from.y) > std::abs(to.x - from.x);
    const Point a = Along(from), b = Along(to);
    begin_ = In256ths(std::min(a.x, b.x));
    end_ = In256ths(std::max(a.x, b.x));
    const float slope = (b.y - a.y) / (b.x - a.x);
    // A line of one pixel is one pixel wide along the axis, whatever its slope: as crisp as can be.
    const float across = width <= 1 ? width : std::min(width, Widest) * std::sqrt(1 + slope * slope);
    across_ = static_cast<int>(across * 256);
    slope_ = static_cast<std::int64_t>(double{slope} * kUnit / 512);
    const double atBegin = a.y + (begin_ * (1.0 / 256) - a.x) * slope - across * 0.5;
    edge_ = static_cast<std::int64_t>(atBegin * kUnit) - slope_ * 2 * begin_;
  }

  bool IsSteep() const { return steep_; }
  int FirstColumn() const { return begin_ >> 8; }
  /// The first or the one before it for a line too short to be seen, which reaches nothing of either.
  int LastColumn() const { return (end_ - 1) >> 8; }
  /// How much of a column's rows it covers, in 256ths of a pixel.
  int Across() const { return across_; }
  /// Rows that it may touch in a column.
  int RowsAcross() const { return (across_ + 255) / 256 + 1; }

  Place At(int column) const {
    const int from = std::max(256 * column, begin_);
    const int to = std::min(256 * column + 256, end_);
    const std::int64_t edge = edge_ + slope_ * (from + to);  // in the middle of what it reaches
    return {static_cast<int>(edge >> kUnitBits), static_cast<int>(edge >> (kUnitBits - 8) & 255), to - from};
  }

 private:
  // Parts of a pixel, fine enough for the longest line.
  static constexpr int kUnitBits = 40;
  static constexpr double kUnit = std::uint64_t{1} << kUnitBits;

  /// The point along the columns and across them.
  Point Along(Point point) const {
    return std::bit_cast<Point>(std::rotl(std::bit_cast<std::uint64_t>(point), steep_ ? 32 : 0));
  }
  static int In256ths(float place) {
    constexpr int kAbove = 1 << 29;  // where numbers are cut off downwards
    return static_cast<int>(double{place} * 256 + (kAbove + 0.5)) - kAbove;
  }

  bool steep_;
  int begin_, end_;  // 256ths of a column
  int across_;
  std::int64_t edge_;   // where the line goes on to column 0
  std::int64_t slope_;  // of the edge, for a 512th of a column
};

}  // namespace kestrel
