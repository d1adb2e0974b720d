#include "draw/InkMask.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <utility>

#include "draw/Mixing.h"

namespace kestrel {
namespace {

// The border holds the ink of lines whose middle runs up to kNear beyond the picture, so that the lines
// inside need no look at it: kNear + kWidestLine / 2 * sqrt(2) + 2 pixels.
constexpr int kBorder = 24;
constexpr float kNear = 12;
constexpr float kWidestLine = 14;

/// The shift of the smallest blocks of which 64 hold a row.
int BlockShift(int pixels) {
  int shift = 3;
  while (pixels > 64 << shift) ++shift;
  return shift;
}

int RoundUp(int pixels, int shift) {
  return ((pixels - 1) >> shift << shift) + (1 << shift);
}

/// Adds a share of a pixel, 0 to 1, up to the whole pixel.
void Ink(std::uint8_t* pixel, float share) {
  // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative, and run for every pixel of every line.
  const int sum = *pixel + static_cast<int>(share * 255 + 0.5F);
  *pixel = static_cast<std::uint8_t>(std::min(sum, 255));
}

}  // namespace

InkMask::InkMask(QSize size, int top)
    : width_(size.width()),
      height_(size.height()),
      top_(top),
      rows_(height_ + 2 * kBorder),
      blockShift_(BlockShift(width_ + 2 * kBorder)),
      stride_(RoundUp(width_ + 2 * kBorder, blockShift_)),
      nearLeft_(kBorder - kNear),
      nearRight_(static_cast<float>(width_ + kBorder) + kNear),
      nearTop_(static_cast<float>(top + kBorder) - kNear),
      nearBottom_(static_cast<float>(top + height_ + kBorder) + kNear),
      ink_(static_cast<std::size_t>(stride_) * static_cast<std::size_t>(rows_)),
      touched_(static_cast<std::size_t>(rows_)),
      firstTouched_(rows_) {}

void InkMask::Touch(float left, float top, float right, float bottom) {
  const auto block = [&](float x) {
    return static_cast<int>(std::clamp(x, 0.0F, static_cast<float>(stride_ - 1))) >> blockShift_;
  };
  const auto row = [&](float y) {
    return static_cast<int>(std::clamp(y - static_cast<float>(top_), 0.0F, static_cast<float>(rows_ - 1)));
  };
  const std::uint64_t blocks =
      (~std::uint64_t{0} << block(left)) & (~std::uint64_t{0} >> (63 - block(right)));
  const int firstRow = row(top);
  const int lastRow = row(bottom);
  for (int i = firstRow; i <= lastRow; ++i) touched_[static_cast<std::size_t>(i)] |= blocks;
  firstTouched_ = std::min(firstTouched_, firstRow);
  lastTouched_ = std::max(lastTouched_, lastRow);
}

float InkMask::AddSegment(Point from, Point to, float width) {
  const bool steep = std::abs(to.y - from.y) > std::abs(to.x - from.x);
  float begin = steep ? from.y : from.x;
  float end = steep ? to.y : to.x;
  float minor = steep ? from.x : from.y;
  float minorEnd = steep ? to.x : to.y;
  if (begin > end) {
    std::swap(begin, end);
    std::swap(minor, minorEnd);
  }
  const float length = end - begin;
  if (!(length > 0) || !std::isfinite(length) || !std::isfinite(minorEnd - minor)) return 0;
  const float lowest = steep ? nearTop_ : nearLeft_;
  const float highest = steep ? nearBottom_ : nearRight_;
  if (begin > highest || end < lowest) return 0;

  const float slope = (minorEnd - minor) / length;
  // A line of one pixel is one pixel wide along the axis, whatever its slope: as crisp as can be.
  const float half = width <= 1 ? width / 2 : std::min(width, kWidestLine) / 2 * std::sqrt(1 + slope * slope);
  const int pixelsAcross = static_cast<int>(std::ceil(2 * half)) + 1;
  const float minorLowest = steep ? nearLeft_ : nearTop_;
  const float minorHighest = steep ? nearRight_ : nearBottom_;
  std::uint8_t* const origin = ink_.data() - top_ * std::ptrdiff_t{stride_};
  const std::ptrdiff_t along = steep ? stride_ : 1;
  const std::ptrdiff_t across = steep ? 1 : stride_;
  // Near the picture no coordinate is negative: the whole number below is the number cut.
  const int first = static_cast<int>(std::max(begin, lowest));
  const int last = static_cast<int>(std::min(end, highest));
  for (int i = first; i <= last; ++i) {
    const float left = std::max(begin, static_cast<float>(i));
    const float right = std::min(end, static_cast<float>(i + 1));
    const float middle = minor + ((left + right) / 2 - begin) * slope;
    if (!(middle >= minorLowest && middle <= minorHighest)) continue;
    const float low = middle - half;
    const float high = middle + half;
    const int row = static_cast<int>(low);
    std::uint8_t* pixel = origin + i * along + row * across;
    // Pixels that the line does not reach are given nothing, which is quicker than to ask.
    for (int k = row; k < row + pixelsAcross; ++k, pixel += across) {
      const float covered = std::min(high, static_cast<float>(k + 1)) - std::max(low, static_cast<float>(k));
      Ink(pixel, (right - left) * std::max(covered, 0.0F));
    }
  }
  return half;
}

void InkMask::AddPolyline(std::span<const Point> points, float width) {
  constexpr std::size_t kChunk = 8;  // segments that are marked as touched together
  const auto shifted = [](Point point) { return Point{point.x + kBorder, point.y + kBorder}; };
  for (std::size_t i = 0; i + 1 < points.size(); i += kChunk) {
    Point from = shifted(points[i]);
    float left = nearRight_, top = nearBottom_, right = nearLeft_, bottom = nearTop_, reach = 0;
    for (const Point& point : points.subspan(i + 1, std::min(kChunk, points.size() - i - 1))) {
      const Point to = shifted(point);
      if (const float half = AddSegment(from, to, width); half > 0) {
        reach = std::max(reach, half);
        left = std::min({left, from.x, to.x});
        top = std::min({top, from.y, to.y});
        right = std::max({right, from.x, to.x});
        bottom = std::max({bottom, from.y, to.y});
      }
      from = to;
    }
    if (reach > 0) Touch(left - reach - 2, top - reach - 2, right + reach + 2, bottom + reach + 2);
  }
}

void InkMask::AddDisc(Point center, float radius) {
  const auto [x, y] = center;
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
  Touch(x + kBorder - reach, y + kBorder - reach, x + kBorder + reach, y + kBorder + reach);
}

void InkMask::AddPoint(Point center) {
  const Point ends[] = {{center.x - 0.5F, center.y}, {center.x + 0.5F, center.y}};
  AddPolyline(ends, 1);
}

void InkMask::LayBlock(int row, int block, QRgb color, QRgb* line) {
  const int pixels = 1 << blockShift_;
  std::uint8_t* const ink = ink_.data() + row * std::ptrdiff_t{stride_} + block * std::ptrdiff_t{pixels};
  const int left = block * pixels - kBorder;
  if (left >= 0 && left + pixels <= width_) {
    MixRows(color, {ink, 0}, {line + left, 0}, pixels / 8, 1);
  } else {
    for (int i = std::max(0, -left); i < std::min(pixels, width_ - left); ++i)
      line[left + i] = Mixed(color, line[left + i], ink[i]);
  }
}

void InkMask::Lay(QRgb color, QImage& image) {
  auto* const pixels = reinterpret_cast<QRgb*>(image.bits());
  const std::ptrdiff_t pixelsPerRow = image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
  for (int row = firstTouched_; row <= lastTouched_; ++row) {
    const bool shown = row >= kBorder && row < kBorder + height_;
    std::uint64_t blocks = std::exchange(touched_[static_cast<std::size_t>(row)], 0);
    for (; blocks != 0; blocks &= blocks - 1) {
      const int block = std::countr_zero(blocks);
      if (shown) LayBlock(row, block, color, pixels + (row - kBorder) * pixelsPerRow);
      std::memset(ink_.data() + row * std::ptrdiff_t{stride_} + (block << blockShift_), 0,
                  std::size_t{1} << blockShift_);
    }
  }
  firstTouched_ = rows_;
  lastTouched_ = -1;
}

}  // namespace kestrel
