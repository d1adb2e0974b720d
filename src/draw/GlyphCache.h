#pragma once

#include <QFont>
#include <QImage>
#include <QPainter>
#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "map/Canvas.h"

namespace kestrel {

/// The letters of one font at one size as shares of ink, for texts that are drawn hundreds of times. Letters
/// stand on quarters of a pixel across and on whole pixels down.
class GlyphCache {
 public:
  /// `pixels` is the font's size.
  GlyphCache(FontFace face, double pixels);
  ~GlyphCache();

  const QFont& PixelFont() const { return font_; }

  /// Whether the cache has all of the text's letters: the visible ones of ASCII and the blank.
  static bool Knows(std::string_view text);

  /// Draws a text that it knows on rows `top` and on of a picture, its base line beginning at `baseline`.
  void Draw(QImage& image, int top, QPointF baseline, QRgb color, std::string_view text);

 private:
  static constexpr int kFirst = 0x20;
  static constexpr int kCount = 0x7F - kFirst;
  static constexpr int kSteps = 4;  // places within a pixel

  struct Glyph {
    bool made = false;
    int left = 0, top = 0, width = 0, height = 0;  // of the ink, from the base line's beginning
    int step = 0;                                  // from row to row of the ink, whole eights
    std::vector<std::uint8_t> ink;
  };

  const Glyph& Made(int letter, int step);
  static void Blend(QImage& image, int x, int y, QRgb color, const Glyph& glyph);

  QFont font_;
  QPoint origin_;  // the base line's beginning on the scratch image, on which every letter fits
  QImage scratch_;
  std::unique_ptr<QPainter> painter_;
  std::array<double, kCount> advances_;
  std::array<std::array<Glyph, kSteps>, kCount> glyphs_;
};

}  // namespace kestrel
