#pragma once

#include <cstdint>
#include <optional>
#include <vector>

// Room for labels: what of a surface is taken, and by whom.

namespace kestrel {

/// A box on a surface, in its units.
struct LabelBox {
  float Left = 0;
  float Top = 0;
  float Right = 0;
  float Bottom = 0;

  bool Touches(const LabelBox& other) const {
    return Left < other.Right && other.Left < Right && Top < other.Bottom && other.Top < Bottom;
  }
  bool Holds(const LabelBox& other) const {
    return Left <= other.Left && other.Right <= Right && Top <= other.Top && other.Bottom <= Bottom;
  }
};

/// The boxes that have been taken within an area. They are found again by the cells of a grid that they lie
/// in, so that a question costs the same however many there are.
class LabelSpace {
 public:
  /// Cells of about the size of a label are best. REQUIRES: both lengths above 0.
  LabelSpace(const LabelBox& area, float cellWidth, float cellHeight);

  /// Whether the whole box lies within the area.
  bool Holds(const LabelBox& box) const { return area_.Holds(box); }

  /// Takes a box for an owner, whatever it touches; what lies beyond the area does not count.
  void Take(const LabelBox& box, int owner);

  /// Calls `each(owner)` for the boxes that touch this one, until it returns true, which is returned. An
  /// owner may come several times.
  template <typename Each>
  bool AnyTouching(const LabelBox& box, Each each) const;

 private:
  struct Entry {
    LabelBox box;
    int owner;
    std::int32_t next;  // in the same cell; -1 at the end
  };
  struct Cells {
    int firstColumn, lastColumn, firstRow, lastRow;
  };

  Cells CellsOf(const LabelBox& box) const;
  std::size_t Cell(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
  }

  LabelBox area_;
  float cellWidth_;
  float cellHeight_;
  int columns_;
  int rows_;
  std::vector<std::int32_t> first_;  // entry of each cell; -1: none
  std::vector<Entry> entries_;
};

template <typename Each>
bool LabelSpace::AnyTouching(const LabelBox& box, Each each) const {
  const Cells cells = CellsOf(box);
  for (int row = cells.firstRow; row <= cells.lastRow; ++row)
    for (int column = cells.firstColumn; column <= cells.lastColumn; ++column)
      for (std::int32_t i = first_[Cell(column, row)]; i >= 0;
           i = entries_[static_cast<std::size_t>(i)].next) {
        const Entry& entry = entries_[static_cast<std::size_t>(i)];
        if (entry.box.Touches(box) && each(entry.owner)) return true;
      }
  return false;
}

}  // namespace kestrel
