#include "draw/InkMask.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <utility>

#include "draw/Mixed.h"

namespace kestrel {
namespace {

// The border holds the ink of lines whose middle runs up to kNear beyond the picture, so that the lines
// inside need no look at it: kNear + kWidestLine / 2 * sqrt(2) + 2 pixels.
constexpr int kBorder = 24;
constexpr float kNear = 12;
constexpr float kWidestLine = 14;

/// The whole number below; for the places on a picture, quicker than the library's.
int Floor(float x) {
  const int whole = static_cast<int>(x);
  return whole - (static_cast<float>(whole) > x ? 1 : 0);
}

/// Adds a share of a pixel, 0 to 1, up to the whole pixel.
void Ink(std::uint8_t* pixel, float share) {
  const int sum = *pixel + static_cast<int>(share * 255 + 0.5F);
  *pixel = static_cast<std::uint8_t>(std::min(sum, 255));
}

/// Eight pixels' ink, the first in the lowest byte.
std::uint64_t EightPixels(const std::uint8_t* ink) {
  std::uint64_t eight = 0;
  std::memcpy(&eight, ink, sizeof eight);
  if constexpr (std::endian::native == std::endian::big) eight = __builtin_bswap64(eight);
  return eight;
}

}  // namespace

InkMask::InkMask(QSize size, int top)
    : width_(size.width()),
      height_(size.height()),
      top_(top),
      stride_(size.width() + 2 * kBorder),
      nearLeft_(-kNear),
      nearRight_(static_cast<float>(width_) + kNear),
      nearTop_(static_cast<float>(top) - kNear),
      nearBottom_(static_cast<float>(top + height_) + kNear),
      ink_(static_cast<std::size_t>(stride_) * static_cast<std::size_t>(height_ + 2 * kBorder)),
      dirty_{stride_, height_ + 2 * kBorder, 0, 0} {}

void InkMask::Widen(float x0, float y0, float x1, float y1, float reach) {
  const auto column = [&](float x) {
    return static_cast<int>(std::clamp(x, nearLeft_, nearRight_) + kBorder);
  };
  const auto row = [&](float y) {
    return static_cast<int>(std::clamp(y, nearTop_, nearBottom_) + kBorder - static_cast<float>(top_));
  };
  const int spread = std::min(static_cast<int>(reach) + 1, kBorder - 2);
  dirty_.left = std::min(dirty_.left, column(std::min(x0, x1)) - spread);
  dirty_.right = std::max(dirty_.right, column(std::max(x0, x1)) + spread + 1);
  dirty_.top = std::min(dirty_.top, row(std::min(y0, y1)) - spread);
  dirty_.bottom = std::max(dirty_.bottom, row(std::max(y0, y1)) + spread + 1);
}

void InkMask::AddSegment(float x0, float y0, float x1, float y1, float width) {
  const bool steep = std::abs(y1 - y0) > std::abs(x1 - x0);
  const bool nearby = IsNear(x0, y0) && IsNear(x1, y1);
  float begin = steep ? y0 : x0;
  float end = steep ? y1 : x1;
  float minor = steep ? x0 : y0;
  float minorEnd = steep ? x1 : y1;
  if (begin > end) {
    std::swap(begin, end);
    std::swap(minor, minorEnd);
  }
  const float length = end - begin;
  if (!(length > 0) || !std::isfinite(length) || !std::isfinite(minorEnd - minor)) return;
  const float slope = (minorEnd - minor) / length;
  // A line of one pixel is one pixel wide along the axis, whatever its slope: as crisp as can be.
  const float half = width <= 1 ? width / 2 : std::min(width, kWidestLine) / 2 * std::sqrt(1 + slope * slope);

  std::uint8_t* const origin = ink_.data() + (kBorder - top_) * std::ptrdiff_t{stride_} + kBorder;
  const std::ptrdiff_t along = steep ? stride_ : 1;
  const std::ptrdiff_t across = steep ? 1 : stride_;
  const float lowest = (steep ? nearTop_ : nearLeft_);
  const float highest = (steep ? nearBottom_ : nearRight_);
  const float minorLowest = (steep ? nearLeft_ : nearTop_);
  const float minorHighest = (steep ? nearRight_ : nearBottom_);
  if (begin > highest || end < lowest) return;
  const int first = Floor(std::max(begin, lowest));
  const int last = Floor(std::min(end, highest));
  for (int i = first; i <= last; ++i) {
    const float from = std::max(begin, static_cast<float>(i));
    const float to = std::min(end, static_cast<float>(i + 1));
    const float share = to - from;
    const float middle = minor + ((from + to) / 2 - begin) * slope;
    if (!nearby && !(middle >= minorLowest && middle <= minorHighest)) continue;
    const float low = middle - half;
    const float high = middle + half;
    int row = Floor(low);
    const int lastRow = Floor(high);
    std::uint8_t* pixel = origin + i * along + row * across;
    if (row == lastRow) {
      Ink(pixel, share * (high - low));
      continue;
    }
    Ink(pixel, share * (static_cast<float>(row + 1) - low));
    for (++row, pixel += across; row < lastRow; ++row, pixel += across) Ink(pixel, share);
    Ink(pixel, share * (high - static_cast<float>(lastRow)));
  }
  Widen(x0, y0, x1, y1, half + 1);
}

void InkMask::AddPolyline(std::span<const QPointF> points, float width) {
  for (std::size_t i = 1; i < points.size(); ++i)
    AddSegment(static_cast<float>(points[i - 1].x()), static_cast<float>(points[i - 1].y()),
               static_cast<float>(points[i].x()), static_cast<float>(points[i].y()), width);
}

void InkMask::AddDisc(QPointF center, float radius) {
  const auto x = static_cast<float>(center.x());
  const auto y = static_cast<float>(center.y());
  const float reach = radius + 1;
  if (!(x + reach > 0 && x - reach < static_cast<float>(width_) && y + reach > static_cast<float>(top_) &&
        y - reach < static_cast<float>(top_ + height_) && std::isfinite(reach)))
    return;
  const int left = static_cast<int>(std::max(0.0F, x - reach));
  const int right = static_cast<int>(std::min(static_cast<float>(width_), x + reach + 1));
  const int top = static_cast<int>(std::max(static_cast<float>(top_), y - reach));
  const int bottom = static_cast<int>(std::min(static_cast<float>(top_ + height_), y + reach + 1));
  const float most = std::min(1.0F, 2 * radius);
  for (int row = top; row < bottom; ++row) {
    std::uint8_t* const pixels = ink_.data() + (row - top_ + kBorder) * std::ptrdiff_t{stride_} + kBorder;
    const float down = static_cast<float>(row) + 0.5F - y;
    for (int column = left; column < right; ++column) {
      const float aside = static_cast<float>(column) + 0.5F - x;
      const float inside = radius + 0.5F - std::sqrt(down * down + aside * aside);
      if (inside > 0) Ink(pixels + column, std::min(inside, most));
    }
  }
  Widen(x - radius, y - radius, x + radius, y + radius, 1);
}

void InkMask::AddPoint(QPointF center) {
  const QPointF ends[] = {{center.x() - 0.5, center.y()}, {center.x() + 0.5, center.y()}};
  AddPolyline(ends, 1);
}

void InkMask::Lay(QRgb color, QImage& image) {
  const int firstRow = std::max(kBorder, dirty_.top);
  const int lastRow = std::min(kBorder + height_, dirty_.bottom);
  const int left = std::max(kBorder, dirty_.left) & ~7;
  const int right = std::min(kBorder + width_, dirty_.right);
  QRgb* pixels = reinterpret_cast<QRgb*>(image.bits());
  const std::ptrdiff_t pixelsPerRow = image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
  for (int row = firstRow; row < lastRow; ++row) {
    const std::uint8_t* const ink = ink_.data() + row * std::ptrdiff_t{stride_};
    QRgb* const line = pixels + (row - kBorder) * pixelsPerRow;
    for (int column = left; column < right; column += 8) {
      for (std::uint64_t rest = EightPixels(ink + column); rest != 0;) {
        const int bit = std::countr_zero(rest) & ~7;
        const int x = column - kBorder + bit / 8;
        const std::uint64_t share = rest >> bit & 0xFF;
        if (x < width_) line[x] = Mixed(color, line[x], static_cast<std::uint32_t>(share));
        rest &= ~(std::uint64_t{0xFF} << bit);
      }
    }
  }
  Clear();
}

void InkMask::Clear() {
  const int left = std::max(0, dirty_.left);
  const int right = std::min(stride_, dirty_.right);
  for (int row = std::max(0, dirty_.top); row < std::min(height_ + 2 * kBorder, dirty_.bottom); ++row)
    if (left < right)
      std::memset(ink_.data() + row * std::ptrdiff_t{stride_} + left, 0,
                  static_cast<std::size_t>(right - left));
  dirty_ = {stride_, height_ + 2 * kBorder, 0, 0};
}

}  // namespace kestrel
