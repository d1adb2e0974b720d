#include "draw/GlyphCache.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "draw/Fonts.h"
#include "draw/Mixing.h"

namespace kestrel {

GlyphCache::GlyphCache(FontFace face, double pixels) {
  const QImage ordinary(1, 1, QImage::Format_RGB32);
  font_ = PlatformFont(face, pixels, ordinary.logicalDpiY());
  font_.setStyleStrategy(QFont::NoSubpixelAntialias);
  const QFontMetricsF metrics(font_);
  for (int letter = 0; letter < kCount; ++letter)
    advances_[static_cast<std::size_t>(letter)] = metrics.horizontalAdvance(QChar(kFirst + letter));
  const int side = static_cast<int>(std::ceil(pixels));
  origin_ = {side / 2 + 2, static_cast<int>(std::ceil(metrics.ascent())) + 2};
}

GlyphCache::~GlyphCache() = default;

bool GlyphCache::Knows(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= kFirst && c < kFirst + kCount; });
}

const GlyphCache::Glyph& GlyphCache::Made(int letter, int step) {
  Glyph& glyph = glyphs_[static_cast<std::size_t>(letter)][static_cast<std::size_t>(step)];
  if (glyph.made) return glyph;
  glyph.made = true;
  if (!painter_) {
    scratch_ = QImage(3 * origin_.x(), 2 * origin_.y(), QImage::Format_RGB32);
    painter_ = std::make_unique<QPainter>(&scratch_);
    painter_->setFont(font_);
    painter_->setPen(Qt::white);
  }
  scratch_.fill(Qt::black);
  painter_->drawText(QPointF(origin_) + QPointF(static_cast<double>(step) / kSteps, 0),
                     QChar(kFirst + letter));

  const int width = scratch_.width();
  int left = width, right = -1, top = scratch_.height(), bottom = -1;
  const auto rowAt = [&](int y) { return reinterpret_cast<const QRgb*>(scratch_.constScanLine(y)); };
  for (int y = 0; y < scratch_.height(); ++y) {
    const QRgb* const row = rowAt(y);
    for (int x = 0; x < width; ++x) {
      if (qGreen(row[x]) == 0) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  if (right < 0) return glyph;
  glyph.left = left - origin_.x();
  glyph.top = top - origin_.y();
  glyph.width = right - left + 1;
  glyph.height = bottom - top + 1;
  glyph.step = (glyph.width + 7) / 8 * 8;
  glyph.ink.resize(static_cast<std::size_t>(glyph.step) * static_cast<std::size_t>(glyph.height));
  std::uint8_t* ink = glyph.ink.data();
  for (int y = top; y <= bottom; ++y, ink += glyph.step)
    for (int x = left; x <= right; ++x) ink[x - left] = static_cast<std::uint8_t>(qGreen(rowAt(y)[x]));
  return glyph;
}

void GlyphCache::Blend(QImage& image, int x, int y, QRgb color, const Glyph& glyph) {
  const InkRows ink = {glyph.ink.data(), glyph.step};
  const PixelRows pixels = {reinterpret_cast<QRgb*>(image.bits()),
                            image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))};
  const int firstRow = std::max(0, -y);
  const int rows = std::min(glyph.height, image.height() - y) - firstRow;
  if (rows <= 0) return;
  const InkRows inkShown = {ink.ink + firstRow * ink.step, ink.step};
  QRgb* const corner = pixels.pixels + (y + firstRow) * pixels.step + x;
  if (x >= 0 && x + glyph.step <= image.width())
    return MixRows(color, inkShown, {corner, pixels.step}, glyph.step / 8, rows);
  const int lastColumn = std::min(glyph.width, image.width() - x);
  for (int row = 0; row < rows; ++row)
    for (int column = std::max(0, -x); column < lastColumn; ++column) {
      QRgb& pixel = corner[row * pixels.step + column];
      pixel = Mixed(color, pixel, inkShown.ink[row * ink.step + column]);
    }
}

void GlyphCache::Draw(QImage& image, int top, QPointF baseline, QRgb color, std::string_view text) {
  constexpr double kFarthest = 1e6;
  double x = baseline.x();
  const double y = baseline.y();
  if (!(std::abs(x) < kFarthest && std::abs(y) < kFarthest)) return;
  const int row = static_cast<int>(std::lround(y)) - top;
  for (const char c : text) {
    const int letter = c - kFirst;
    const auto quarters = static_cast<int>(std::floor(x * kSteps + 0.5));
    const int column = quarters >> 2;
    const Glyph& glyph = Made(letter, quarters & (kSteps - 1));
    Blend(image, column + glyph.left, row + glyph.top, color, glyph);
    x += advances_[static_cast<std::size_t>(letter)];
  }
}

}  // namespace kestrel
