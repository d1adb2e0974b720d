#include "map/TowerSheet.h"

namespace kestrel {
namespace {

constexpr float kHeadTop = 0.015F;     // of the screen's height
constexpr float kFirstRow = 0.03F;     // likewise
constexpr float kRowStep = 0.025F;     // likewise
constexpr float kFontShare = 0.0008F;  // points, of the screen's height in twips
constexpr std::array<float, TowerColumns> kLefts = {0.05F, 0.12F, 0.19F, 0.26F, 0.33F, 0.4F};

}  // namespace

SheetArea TowerSheetArea(const ScreenTwips& screen) {
  return {0, 0, screen.Width * 0.5F, screen.Height * 0.38F};
}

Font TowerSheetFont(const ScreenTwips& screen) {
  return {FontFace::Sans, screen.Height * kFontShare};
}

void DrawTowerSheet(Canvas& canvas, const ScreenTwips& screen, std::span<const TowerRow> rows) {
  canvas.SetFont(TowerSheetFont(screen));
  canvas.SetColor(Palette::Text);
  for (std::size_t column = 0; column < TowerColumns; ++column) {
    const float left = screen.Width * kLefts[column];
    canvas.Text({left, screen.Height * kHeadTop}, TowerHeads[column]);
    for (std::size_t i = 0; i < rows.size(); ++i)
      canvas.Text({left, screen.Height * (kRowStep * static_cast<float>(i + 1) + kFirstRow)},
                  rows[i][column]);
  }
}

}  // namespace kestrel
