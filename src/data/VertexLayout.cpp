#include "data/VertexLayout.h"

#include <bit>
#include <cstring>

#include "core/EightCharacters.h"
#include "core/PlainNumber.h"

namespace kestrel {

std::optional<VertexLayout::Fraction> VertexLayout::Fraction::Of(const char* line, std::size_t& at) {
  constexpr std::size_t kMost = 8;  // characters
  const bool negative = line[at] == '-';
  if (negative) ++at;
  Fraction fraction;
  fraction.begin = at;
  const auto passDigits = [&] {
    while (at - fraction.begin <= kMost && IsDigit(line[at])) ++at;
  };
  passDigits();
  if (line[at] != '.') return std::nullopt;
  const std::size_t point = at++;
  passDigits();
  const std::size_t length = at - fraction.begin;
  if (length < 2 || length > kMost) return std::nullopt;
  fraction.whole = point - fraction.begin;
  fraction.after = static_cast<int>(8 * (kMost - length));
  const std::size_t decimals = at - point - 1;
  fraction.back = ~std::uint64_t{0} << 8 << 8 * (kMost - 1 - decimals);
  const auto power = static_cast<float>(PowersOfTen[decimals]);
  fraction.divisor = negative ? -power : power;
  return fraction;
}

/// Rounded once: seven digits and the power of ten are both exact in a single.
inline float VertexLayout::Fraction::Read(const char* line) const {
  const std::uint64_t values = EightCharacters(line + begin) ^ (0x0101010101010101 * '0');
  const std::uint64_t moved = values << after;
  // The digits in front of the point take its place.
  const std::uint64_t digits = EightDigits((moved & back) | (moved << 8 & ~back));
  return static_cast<float>(static_cast<std::int32_t>(digits)) / divisor;
}

inline bool VertexLayout::IsOf(const char* line) const {
  Window characters;
  std::memcpy(&characters, line, sizeof characters);
  const auto fits = (characters[0] - least_[0] <= range_[0]) & (characters[1] - least_[1] <= range_[1]);
  std::uint64_t words[2];
  std::memcpy(words, &fits, sizeof words);
  return (words[0] & words[1]) == ~std::uint64_t{0};
}

std::optional<VertexLayout> VertexLayout::Of(std::string_view bytes) {
  if (bytes.size() < kWindow) return std::nullopt;
  const char* const line = bytes.data();
  std::size_t at = 0;
  const auto latitude = Fraction::Of(line, at);
  if (!latitude || latitude->whole > 2 || line[at] != ' ') return std::nullopt;
  const auto longitude = Fraction::Of(line, ++at);
  if (!longitude) return std::nullopt;
  if (line[at] == '\r') ++at;
  if (line[at] != '\n') return std::nullopt;
  VertexLayout layout;
  layout.latitude_ = *latitude;
  layout.longitude_ = *longitude;
  layout.lineLength_ = at + 1;
  std::array<std::uint8_t, kWindow> least = {}, range;
  range.fill(255);
  for (std::size_t i = 0; i < layout.lineLength_; ++i) {
    const bool digit = IsDigit(line[i]);
    least[i] = static_cast<std::uint8_t>(digit ? '0' : line[i]);
    range[i] = digit ? 9 : 0;
  }
  layout.least_ = std::bit_cast<Window>(least);
  layout.range_ = std::bit_cast<Window>(range);
  return layout;
}

std::size_t VertexLayout::CountLines(std::string_view bytes, std::size_t most) const {
  std::size_t count = 0;
  for (std::size_t at = 0; count < most && at + kWindow <= bytes.size(); at += lineLength_) {
    if (!IsOf(bytes.data() + at)) break;
    ++count;
  }
  return count;
}

void VertexLayout::ReadLines(std::string_view lines, std::span<float> latitudes,
                             std::span<float> longitudes) const {
  const Fraction latitude = latitude_, longitude = longitude_;
  const char* line = lines.data();
  for (std::size_t i = 0; i < latitudes.size(); ++i, line += lineLength_) {
    latitudes[i] = latitude.Read(line);
    longitudes[i] = longitude.Read(line);
  }
}

}  // namespace kestrel
