#pragma once

#include <QRgb>
#include <cstdint>

namespace kestrel {

/// The opaque colour `below` drawn towards `color` by share / 255; all of it at 255.
inline QRgb Mixed(QRgb color, QRgb below, std::uint32_t share) {
  const std::uint32_t of = share + (share >> 7);  // 255 becomes 256
  const std::uint32_t rest = 256 - of;
  const std::uint32_t redBlue = ((color & 0xFF00FF) * of + (below & 0xFF00FF) * rest) >> 8 & 0xFF00FF;
  const std::uint32_t green = ((color & 0x00FF00) * of + (below & 0x00FF00) * rest) >> 8 & 0x00FF00;
  return 0xFF000000 | redBlue | green;
}

}  // namespace kestrel
