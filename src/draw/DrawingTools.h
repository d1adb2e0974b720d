#pragma once

#include <QImage>
#include <memory>
#include <vector>

#include "draw/GlyphCache.h"
#include "draw/InkMask.h"

namespace kestrel {

/// What a RasterCanvas works with. A surface that is drawn again and again keeps its tools, and with them the
/// mask's memory and the letters made.
class DrawingTools {
 public:
  /// The mask, emptied and made one for these rows.
  InkMask& Mask(QSize size, int top);

  /// The letters of a font whose size is given in pixels. They last until ForgetOldGlyphs.
  GlyphCache& Glyphs(FontFace face, double pixels);

  /// Keeps the store of letters small when the surface changes its size again and again. No drawing may be
  /// under way.
  void ForgetOldGlyphs();

 private:
  struct SizedGlyphs {
    FontFace face;
    double pixels;
    std::unique_ptr<GlyphCache> cache;
  };

  InkMask mask_;
  std::vector<SizedGlyphs> glyphs_;
};

}  // namespace kestrel
