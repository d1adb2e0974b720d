#include "draw/DrawingTools.h"

namespace kestrel {
namespace {

constexpr std::size_t kMostFonts = 12;  // a map has three or four

}  // namespace

InkMask& DrawingTools::Mask(QSize size, int top) {
  mask_.Reset(size, top);
  return mask_;
}

GlyphCache& DrawingTools::Glyphs(FontFace face, double pixels) {
  for (SizedGlyphs& glyphs : glyphs_)
    if (glyphs.face == face && glyphs.pixels == pixels) return *glyphs.cache;
  return *glyphs_.emplace_back(SizedGlyphs{face, pixels, std::make_unique<GlyphCache>(face, pixels)}).cache;
}

void DrawingTools::ForgetOldGlyphs() {
  if (glyphs_.size() > kMostFonts) glyphs_.clear();
}

}  // namespace kestrel
