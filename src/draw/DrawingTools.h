#pragma once

#include <QImage>
#include <memory>
#include <optional>
#include <vector>

#include "draw/GlyphCache.h"
#include "draw/InkMask.h"

namespace kestrel {

/// What a RasterCanvas works with. A surface that is drawn again and again keeps its tools, and with them the
/// mask's memory and the letters made.
class DrawingTools {
 public:
  /// An empty mask for these rows. It is the same one as long as they are the same.
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

  std::optional<InkMask> mask_;
  std::vector<SizedGlyphs> glyphs_;
};

}  // namespace kestrel
