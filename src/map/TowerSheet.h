#pragma once

#include <span>

#include "data/TowerTable.h"
#include "map/Canvas.h"
#include "map/Sheet.h"

namespace kestrel {

/// A screen's size in twips; the tower table's places are shares of it.
struct ScreenTwips {
  float Width = 0;
  float Height = 0;
};

/// The part of the table's window that the table takes, in twips.
SheetArea TowerSheetArea(const ScreenTwips& screen);

/// The table's font. The columns stand so close that text which grows runs into the next one.
Font TowerSheetFont(const ScreenTwips& screen);

/// Draws the tower table: heads, and a row for each tower.
void DrawTowerSheet(Canvas& canvas, const ScreenTwips& screen, std::span<const TowerRow> rows);

}  // namespace kestrel
