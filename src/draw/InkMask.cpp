#include "draw/InkMask.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <type_traits>
#include <utility>

#include "draw/Mixing.h"

namespace kestrel {
namespace {

// The border holds the ink of lines that run along the picture's edge, in whole eights.
constexpr int kBorder = InkMask::LongestReach;
static_assert(kBorder >= WideLine::Widest * 1.42 + 1 && kBorder % 8 == 0);
constexpr int kPixelsOfWord = 64 * 8;  // whose eights are marked in a word
constexpr int kPiece = 16;             // columns of a line that are marked together

/// The eights of a word of 64 from one to another.
std::uint64_t EightsFromTo(int first, int last) {
  return (~std::uint64_t{0} << first) & (~std::uint64_t{0} >> (63 - last));
}

/// Whether a point is a place that lines may end at.
bool IsNear(Point point) {
  return std::abs(point.x) < WideLine::Farthest && std::abs(point.y) < WideLine::Farthest;
}

/// Adds a share of a pixel, in 256ths, up to the whole pixel.
void AddInk(std::uint8_t* pixel, int share) {
  *pixel = static_cast<std::uint8_t>(std::min(*pixel + share, 255));
}

}  // namespace

void InkMask::Reset(QSize size, int top) {
  // A drawing that was broken off has left ink.
  if (lastTouched_ >= 0) *this = {};
  width_ = size.width();
  height_ = size.height();
  top_ = top;
  rows_ = height_ + 2 * kBorder;
  stride_ = ((width_ + 2 * kBorder + 63) / 64 | 1) * 64;
  words_ = (stride_ + kPixelsOfWord - 1) / kPixelsOfWord;
  const auto fit = [rows = static_cast<std::size_t>(rows_)](auto& memory, int perRow) {
    const std::size_t wanted = rows * static_cast<std::size_t>(perRow);
    if (memory.size() < wanted || memory.size() > 2 * wanted)
      memory = std::remove_reference_t<decltype(memory)>(wanted);
  };
  fit(ink_, stride_);
  fit(touched_, words_);
  firstTouched_ = rows_;
  const int lastRow = top_ + rows_ - 1;
  std::uint8_t* const origin = ink_.data() - top_ * std::ptrdiff_t{stride_};
  axes_[0] = {0, stride_ - 1, top_, lastRow, origin, 1, stride_};
  axes_[1] = {top_, lastRow, 0, stride_ - 1, origin, stride_, 1};
}

void InkMask::Touch(int left, int top, int right, int bottom) {
  const int firstWord = left / kPixelsOfWord;
  const int lastWord = right / kPixelsOfWord;
  for (int word = firstWord; word <= lastWord; ++word) {
    const std::uint64_t eights = EightsFromTo(word == firstWord ? left % kPixelsOfWord / 8 : 0,
                                              word == lastWord ? right % kPixelsOfWord / 8 : 63);
    for (int row = top; row <= bottom; ++row) Touched(row, word) |= eights;
  }
  firstTouched_ = std::min(firstTouched_, top);
  lastTouched_ = std::max(lastTouched_, bottom);
}

void InkMask::Ink(const WideLine& line) {
  const Axes& axes = axes_[line.IsSteep() ? 1 : 0];
  const int end = std::min(line.LastColumn(), axes.lastColumn);
  for (int first = std::max(line.FirstColumn(), axes.firstColumn); first <= end; first += kPiece)
    InkPiece(line, axes, first, std::min(first + kPiece - 1, end));
}

void InkMask::InkPiece(const WideLine& line, const Axes& axes, int first, int last) {
  const int rowsAcross = line.RowsAcross();
  const int highestRow = axes.lastRow - rowsAcross + 1;
  const int rowAtFirst = line.At(first).Row, rowAtLast = line.At(last).Row;
  const int low = std::min(rowAtFirst, rowAtLast), high = std::max(rowAtFirst, rowAtLast);
  if (high < axes.firstRow || low > highestRow) return;
  const bool whole = low >= axes.firstRow && high <= highestRow;
  std::uint8_t* column = axes.origin + first * axes.alongStep;
  for (int i = first; i <= last; ++i, column += axes.alongStep) {
    const WideLine::Place place = line.At(i);
    if (!whole && (place.Row < axes.firstRow || place.Row > highestRow)) continue;
    std::uint8_t* pixel = column + place.Row * axes.acrossStep;
    int room = 256 - place.InRow;
    int left = line.Across();
    // Pixels that the line does not reach are given nothing, which is quicker than a test.
    for (int k = 0; k < rowsAcross; ++k, pixel += axes.acrossStep, room = 256) {
      const int covered = std::min(room, left);
      left -= covered;
      AddInk(pixel, (covered * place.Share + 128) >> 8);
    }
  }
  const int top = std::max(low, axes.firstRow), bottom = std::min(high, highestRow) + rowsAcross - 1;
  if (line.IsSteep())
    Touch(top, first - top_, bottom, last - top_);
  else
    Touch(first, top - top_, last, bottom - top_);
}

void InkMask::AddPolyline(std::span<const Point> points, float width) {
  const float reach = std::min(width, WideLine::Widest) + 1;  // of its ink, slanting lines' too
  const float upper = static_cast<float>(top_ + kBorder) - reach;
  const float lower = static_cast<float>(top_ + kBorder + height_) + reach;
  const auto inMask = [&](std::size_t i) { return Point{points[i].x + kBorder, points[i].y + kBorder}; };
  for (std::size_t i = 1; i < points.size(); ++i) {
    const Point from = inMask(i - 1), to = inMask(i);
    const bool beside = (from.y < upper && to.y < upper) || (from.y > lower && to.y > lower);
    if (!beside && from != to && IsNear(from) && IsNear(to)) Ink(WideLine(from, to, width));
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
      if (inside > 0) AddInk(pixels + column, static_cast<int>(std::min(inside, most) * 256));
    }
  }
  if (left < right && top < bottom)
    Touch(left + kBorder, top - top_ + kBorder, right - 1 + kBorder, bottom - 1 - top_ + kBorder);
}

void InkMask::AddPoint(Point center) {
  const Point ends[] = {{center.x - 0.5F, center.y}, {center.x + 0.5F, center.y}};
  AddPolyline(ends, 1);
}

void InkMask::Lay(QRgb color, QImage& image) {
  auto* const pixels = reinterpret_cast<QRgb*>(image.bits());
  const std::ptrdiff_t pixelsPerRow = image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
  for (int row = firstTouched_; row <= lastTouched_; ++row) {
    const bool shown = row >= kBorder && row < kBorder + height_;
    QRgb* const line = shown ? pixels + (row - kBorder) * pixelsPerRow : nullptr;
    for (int word = 0; word < words_; ++word)
      if (const auto eights = std::exchange(Touched(row, word), 0)) LayWord(color, row, word, eights, line);
  }
  firstTouched_ = rows_;
  lastTouched_ = -1;
}

void InkMask::LayWord(QRgb color, int row, int word, std::uint64_t eights, QRgb* line) {
  std::uint8_t* const ink =
      ink_.data() + row * std::ptrdiff_t{stride_} + word * std::ptrdiff_t{kPixelsOfWord};
  const int left = word * kPixelsOfWord - kBorder;  // the first pixel's place in the picture
  const int firstWhole = word == 0 ? kBorder / 8 : 0;
  const int wholes = std::min((width_ - left) / 8, 64) - firstWhole;
  if (line && wholes > 0) {
    const std::uint64_t whole = eights & EightsFromTo(firstWhole, firstWhole + wholes - 1);
    const int first = 8 * firstWhole;
    LayEights(color, ink + first, line + left + first, whole >> firstWhole);
    eights &= ~whole;
  }
  // Beside the picture, and the pixels at its right side that do not make up eight.
  for (; eights != 0; eights &= eights - 1) {
    const int first = 8 * std::countr_zero(eights);
    for (int i = first; line && i < first + 8; ++i)
      if (left + i >= 0 && left + i < width_) line[left + i] = Mixed(color, line[left + i], ink[i]);
    std::memset(ink + first, 0, 8);
  }
}

}  // namespace kestrel
