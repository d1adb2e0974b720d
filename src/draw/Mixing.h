#pragma once

#include <QRgb>
#include <cstddef>
#include <cstdint>

#include "core/VectorLevels.h"

namespace kestrel {

/// The opaque colour `below` drawn towards `color` by share / 255; all of it at 255.
inline QRgb Mixed(QRgb color, QRgb below, std::uint32_t share) {
  const std::uint32_t of = share + (share >> 7);  // 255 becomes 256
  const std::uint32_t rest = 256 - of;
  const std::uint32_t redBlue = ((color & 0xFF00FF) * of + (below & 0xFF00FF) * rest) >> 8 & 0xFF00FF;
  const std::uint32_t green = ((color & 0x00FF00) * of + (below & 0x00FF00) * rest) >> 8 & 0x00FF00;
  return 0xFF000000 | redBlue | green;
}

/// Shares of ink, 0 to 255, and how many of them it is from one row to the next.
struct InkRows {
  const std::uint8_t* ink;
  std::ptrdiff_t step;
};

/// Pixels that ink is laid on, and how many of them it is from one row to the next.
struct PixelRows {
  QRgb* pixels;
  std::ptrdiff_t step;
};

namespace KESTREL_KERNELS {

/// Draws the pixels of a rectangle, 8 * `eights` wide, towards `color` by their shares of ink. All of the
/// pixels must be there; those without ink keep their colour.
void MixRows(QRgb color, const InkRows& ink, const PixelRows& pixels, int eights, int rows);

/// Draws the pixels of a row towards `color` by their shares of ink and takes that ink away: those eights of
/// the row's first 64 whose bits are set, the first eight's the lowest.
void LayEights(QRgb color, std::uint8_t* ink, QRgb* pixels, std::uint64_t eights);

}  // namespace KESTREL_KERNELS
using KESTREL_KERNELS::LayEights;
using KESTREL_KERNELS::MixRows;

}  // namespace kestrel
