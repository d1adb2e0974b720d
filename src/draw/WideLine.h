#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "map/Canvas.h"

namespace kestrel {

/// A straight line of a width, in pixels, as InkMask inks it: column by column, or row by row when it is
/// steep. What is said of columns and the rows of one holds for rows and the columns of one then.
class WideLine {
 public:
  /// Wider lines are drawn so wide.
  static constexpr float Widest = 30;

  /// Where the line lies in a column.
  struct Place {
    /// Its lower edge, in parts of a pixel fine enough for the longest line.
    std::int64_t Edge = 0;
    /// How much of the column it reaches, in 256ths.
    int Share = 0;

    int Row() const { return static_cast<int>(Edge >> kEdgeBits); }
    /// How far the edge lies in its row, in 256ths.
    int InRow() const { return static_cast<int>(Edge >> (kEdgeBits - 8) & 255); }
  };

  /// A line of no length, or one that is nowhere near or no number, is none.
  WideLine(Point from, Point to, float width) {
    const Ends ends(from, to);
    if (!ends.AreNear() || !(ends.End > ends.Begin)) return;
    const float slope = (ends.MinorEnd - ends.Minor) / (ends.End - ends.Begin);
    // A line of one pixel is one pixel wide along the axis, whatever its slope: as crisp as can be.
    const float across = width <= 1 ? width : std::min(width, Widest) * std::sqrt(1 + slope * slope);
    const auto edgeAt = [&](float place) {
      return static_cast<std::int64_t>((ends.Minor + (double{place} - ends.Begin) * slope - across / 2) *
                                       kEdgeUnit);
    };
    const auto placeAtEnd = [&](int column) -> Place {
      const float left = std::max(ends.Begin, static_cast<float>(column));
      const float right = std::min(ends.End, static_cast<float>(column + 1));
      // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative, and run for both ends of every line.
      return {edgeAt((left + right) / 2), static_cast<int>((right - left) * 256 + 0.5F)};
    };
    isLine_ = true;
    steep_ = ends.Steep;
    first_ = static_cast<int>(std::floor(ends.Begin));
    last_ = static_cast<int>(std::floor(ends.End));
    atFirst_ = placeAtEnd(first_);
    atLast_ = placeAtEnd(last_);
    inFirst_ = edgeAt(static_cast<float>(first_) + 0.5F);
    step_ = static_cast<std::int64_t>(double{slope} * kEdgeUnit);
    across_ = static_cast<int>(across * 256);
  }

  bool IsLine() const { return isLine_; }
  bool IsSteep() const { return steep_; }
  int FirstColumn() const { return first_; }
  int LastColumn() const { return last_; }
  /// How much of a column's rows it covers, in 256ths of a pixel.
  int Across() const { return across_; }
  /// Rows that it may touch in a column.
  int RowsAcross() const { return (across_ + 255) / 256 + 1; }

  Place At(int column) const {
    if (column == first_) return atFirst_;
    return column == last_ ? atLast_ : Place{inFirst_ + step_ * (column - first_), 256};
  }

 private:
  static constexpr int kEdgeBits = 24;
  static constexpr double kEdgeUnit = 1 << kEdgeBits;
  static constexpr float kFarthest = 1 << 30;

  /// Both ends along the columns and across them, in the order of the columns.
  struct Ends {
    bool Steep;
    float Begin, End;
    float Minor, MinorEnd;

    Ends(Point from, Point to) : Steep(std::abs(to.y - from.y) > std::abs(to.x - from.x)) {
      const Point a = Steep ? Point{from.y, from.x} : from;
      const Point b = Steep ? Point{to.y, to.x} : to;
      const bool backwards = a.x > b.x;
      Begin = backwards ? b.x : a.x;
      End = backwards ? a.x : b.x;
      Minor = backwards ? b.y : a.y;
      MinorEnd = backwards ? a.y : b.y;
    }

    /// Written so that a place that is no number is far away.
    bool AreNear() const {
      return std::abs(Begin) < kFarthest && std::abs(End) < kFarthest && std::abs(Minor) < kFarthest &&
             std::abs(MinorEnd) < kFarthest;
    }
  };

  bool isLine_ = false;
  bool steep_ = false;
  int first_ = 0, last_ = 0;  // columns
  Place atFirst_, atLast_;
  std::int64_t inFirst_ = 0;  // the edge in the middle of the first column, where the line goes on beyond it
  std::int64_t step_ = 0;     // of the edge, from a column to the next
  int across_ = 0;
};

}  // namespace kestrel
