#include "map/LabelSpace.h"

#include <algorithm>
#include <cmath>

namespace kestrel {
namespace {

constexpr float kMostCells = 1000;  // across or down

int CellCount(float length, float cell) {
  return static_cast<int>(std::clamp(std::ceil(length / cell), 1.0F, kMostCells));
}

}  // namespace

LabelSpace::LabelSpace(const LabelBox& area, float cellWidth, float cellHeight)
    : area_(area),
      columns_(CellCount(area.Right - area.Left, cellWidth)),
      rows_(CellCount(area.Bottom - area.Top, cellHeight)),
      first_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_), -1) {
  cellWidth_ = std::max(cellWidth, (area.Right - area.Left) / static_cast<float>(columns_));
  cellHeight_ = std::max(cellHeight, (area.Bottom - area.Top) / static_cast<float>(rows_));
}

LabelSpace::Cells LabelSpace::CellsOf(const LabelBox& box) const {
  const auto cell = [](float offset, float size, int count) {
    return static_cast<int>(std::clamp(std::floor(offset / size), 0.0F, static_cast<float>(count - 1)));
  };
  return {cell(box.Left - area_.Left, cellWidth_, columns_),
          cell(box.Right - area_.Left, cellWidth_, columns_), cell(box.Top - area_.Top, cellHeight_, rows_),
          cell(box.Bottom - area_.Top, cellHeight_, rows_)};
}

void LabelSpace::Take(const LabelBox& box, int owner) {
  if (!box.Touches(area_)) return;
  const Cells cells = CellsOf(box);
  for (int row = cells.firstRow; row <= cells.lastRow; ++row)
    for (int column = cells.firstColumn; column <= cells.lastColumn; ++column) {
      std::int32_t& first = first_[Cell(column, row)];
      entries_.push_back({box, owner, first});
      first = static_cast<std::int32_t>(entries_.size()) - 1;
    }
}

}  // namespace kestrel
