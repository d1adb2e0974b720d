#include "draw/InkMask.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <utility>

#include "draw/Mixing.h"

namespace kestrel {
namespace {

constexpr float kWidestLine = 14;
// The border holds the ink of lines that run along the picture's edge, kWidestLine * sqrt(2) + 1 pixels, in
// whole eights.
constexpr int kBorder = InkMask::LongestReach;
constexpr int kPixelsOfWord = 64 * 8;  // whose eights are marked in a word
constexpr int kPiece = 16;             // columns of a line that are marked together
constexpr float kFarthest = 1 << 30;

// Places across a line, in parts of a pixel fine enough for the longest line.
using Fixed = std::int64_t;
constexpr int kFixedBits = 24;
constexpr double kOne = 1 << kFixedBits;

/// The eights of a word of 64 from one to another.
std::uint64_t EightsFromTo(int first, int last) {
  return (~std::uint64_t{0} << first) & (~std::uint64_t{0} >> (63 - last));
}

/// Adds a share of a pixel, in 256ths, up to the whole pixel.
void Ink(std::uint8_t* pixel, int share) {
  *pixel = static_cast<std::uint8_t>(std::min(*pixel + share, 255));
}

}  // namespace

/// A line of a width as the mask takes it: column by column, row by row when it is steep. What is said of
/// columns and the pixels of one holds for rows then.
struct InkMask::Course {
  /// Where the line lies in a column: its lower edge, and the share of the column that it reaches, in 256ths.
  struct Place {
    Fixed edge;
    int share;
    int Row() const { return static_cast<int>(edge >> kFixedBits); }
  };

  bool isLine;  // otherwise there is nothing to draw
  bool steep;
  float begin, end;  // along the columns
  float minor;       // across them, at the beginning
  float slope;
  float across;     // how wide the line is in a column
  int first, last;  // columns
  Fixed edgeAtFirst, step;
  int inked;         // `across` in 256ths
  int pixelsAcross;  // that it may reach in a column

  Course(Point from, Point to, float width) {
    steep = std::abs(to.y - from.y) > std::abs(to.x - from.x);
    const float a = steep ? from.y : from.x;
    const float b = steep ? to.y : to.x;
    const float c = steep ? from.x : from.y;
    const float d = steep ? to.x : to.y;
    const bool back = a > b;
    begin = back ? b : a;
    end = back ? a : b;
    minor = back ? d : c;
    const float minorEnd = back ? c : d;
    const float length = end - begin;
    // Written so that a place that is no number is far away.
    isLine = (length > 0) & (std::abs(begin) < kFarthest) & (std::abs(end) < kFarthest) &
             (std::abs(minor) < kFarthest) & (std::abs(minorEnd) < kFarthest);
    if (!isLine) return;
    slope = (minorEnd - minor) / length;
    // A line of one pixel is one pixel wide along the axis, whatever its slope: as crisp as can be.
    across = width <= 1 ? width : std::min(width, kWidestLine) * std::sqrt(1 + slope * slope);
    first = static_cast<int>(std::floor(begin));
    last = static_cast<int>(std::floor(end));
    edgeAtFirst = EdgeAt(static_cast<float>(first) + 0.5F);
    step = static_cast<Fixed>(double{slope} * kOne);
    inked = static_cast<int>(across * 256);
    pixelsAcross = (inked + 255) / 256 + 1;
    atFirst = AtEnd(first);
    atLast = AtEnd(last);
  }
  Place atFirst, atLast;

  Fixed EdgeAt(float place) const {
    return static_cast<Fixed>((minor + (double{place} - begin) * slope - across / 2) * kOne);
  }

  /// In a column that the line may begin or end in.
  Place AtEnd(int column) const {
    const float left = std::max(begin, static_cast<float>(column));
    const float right = std::min(end, static_cast<float>(column + 1));
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative, and run for both ends of every line.
    return {EdgeAt((left + right) / 2), static_cast<int>((right - left) * 256 + 0.5F)};
  }

  Place At(int column) const {
    return column == first  ? atFirst
           : column == last ? atLast
                            : Place{edgeAtFirst + step * (column - first), 256};
  }
};

void InkMask::Hold(QSize size, int top) {
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

void InkMask::InkCourse(const Course& course) {
  const bool steep = course.steep;
  const int lowestColumn = steep ? top_ : 0;
  const int highestColumn = steep ? top_ + rows_ - 1 : stride_ - 1;
  const int lowestRow = steep ? 0 : top_;
  const int highestRow = (steep ? stride_ : top_ + rows_) - course.pixelsAcross;
  std::uint8_t* const origin = ink_.data() - top_ * std::ptrdiff_t{stride_};
  const std::ptrdiff_t alongStep = steep ? stride_ : 1;
  const std::ptrdiff_t acrossStep = steep ? 1 : stride_;

  const int endColumn = std::min(course.last, highestColumn);
  for (int piece = std::max(course.first, lowestColumn); piece <= endColumn; piece += kPiece) {
    const int pieceEnd = std::min(piece + kPiece - 1, endColumn);
    int low = highestRow + 1, high = -1;
    for (int column = piece; column <= pieceEnd; ++column) {
      const Course::Place place = course.At(column);
      const int row = place.Row();
      if (row < lowestRow || row > highestRow) continue;
      low = std::min(low, row);
      high = std::max(high, row);
      std::uint8_t* pixel = origin + column * alongStep + row * acrossStep;
      int room = 256 - static_cast<int>(place.edge >> (kFixedBits - 8) & 255);
      int left = course.inked;
      // Pixels that the line does not reach are given nothing, which is quicker than to ask.
      for (int k = 0; k < course.pixelsAcross; ++k, pixel += acrossStep, room = 256) {
        const int covered = std::min(room, left);
        left -= covered;
        Ink(pixel, (covered * place.share + 128) >> 8);
      }
    }
    if (high < 0) continue;
    high += course.pixelsAcross - 1;
    if (steep)
      Touch(low, piece - top_, high, pieceEnd - top_);
    else
      Touch(piece, low - top_, pieceEnd, high - top_);
  }
}

void InkMask::AddPolyline(std::span<const Point> points, float width) {
  if (points.size() < 2) return;
  const auto course = [&](std::size_t i) {
    const Point from = points[i], to = points[i + 1];
    return Course({from.x + kBorder, from.y + kBorder}, {to.x + kBorder, to.y + kBorder}, width);
  };
  Course next = course(0);
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    const Course present = next;
    if (i + 2 < points.size()) next = course(i + 1);
    if (present.isLine) InkCourse(present);
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
      if (inside > 0) Ink(pixels + column, static_cast<int>(std::min(inside, most) * 256));
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
