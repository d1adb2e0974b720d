#include "draw/Mixing.h"

#include <bit>
#include <cstring>

namespace kestrel::KESTREL_KERNELS {
namespace {

// Written with vectors, since the compiler unrolls a loop of eight rounds instead.
using Eight [[gnu::vector_size(32)]] = std::uint32_t;

/// The shifts that bring each of four bytes down to the lowest, in their order in memory.
constexpr bool kLittle = std::endian::native == std::endian::little;
constexpr Eight kShifts = kLittle ? Eight{0, 8, 16, 24, 0, 8, 16, 24} : Eight{24, 16, 8, 0, 24, 16, 8, 0};

/// Mixed for eight pixels. One without ink keeps its colour: all 256 parts are its own. To save half of the
/// products, color * of + below * (256 - of) is written (color - below) * of + below * 256; what is borrowed
/// from the upper part of a word in the difference comes back in the sum.
[[gnu::always_inline]] inline void MixEight(QRgb color, const std::uint8_t* shares, QRgb* below) {
  std::uint32_t four[2];
  std::memcpy(four, shares, sizeof four);
  Eight colors;
  std::memcpy(&colors, below, sizeof colors);
  const Eight fours = {four[0], four[0], four[0], four[0], four[1], four[1], four[1], four[1]};
  const Eight share = fours >> kShifts & 0xFF;
  const Eight of = share + (share >> 7);
  const Eight redBlue = colors & 0xFF00FF;
  const Eight green = colors & 0x00FF00;
  const Eight mixedRedBlue = (((color & 0xFF00FF) - redBlue) * of + (redBlue << 8)) >> 8 & 0xFF00FF;
  const Eight mixedGreen = (((color & 0x00FF00) - green) * of + (green << 8)) >> 8 & 0x00FF00;
  colors = 0xFF000000 | mixedRedBlue | mixedGreen;
  std::memcpy(below, &colors, sizeof colors);
}

}  // namespace

KESTREL_CLONES void MixRows(QRgb color, const InkRows& ink, const PixelRows& pixels, int eights, int rows) {
  for (int row = 0; row < rows; ++row)
    for (std::ptrdiff_t i = 0; i < eights; ++i)
      MixEight(color, ink.ink + row * ink.step + 8 * i, pixels.pixels + row * pixels.step + 8 * i);
}

KESTREL_CLONES void LayEights(QRgb color, std::uint8_t* ink, QRgb* pixels, std::uint64_t eights) {
  for (; eights != 0; eights &= eights - 1) {
    const int first = 8 * std::countr_zero(eights);
    MixEight(color, ink + first, pixels + first);
    std::memset(ink + first, 0, 8);
  }
}

}  // namespace kestrel::KESTREL_KERNELS
