#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

namespace kestrel {

/// A few short texts in one piece of memory, and one pointer to it. An import keeps some for every row of its
/// files at once, and strings of their own would take more room than the row.
template <std::size_t N>
class PackedTexts {
 public:
  PackedTexts() = default;
  /// REQUIRES: the texts have at most 65535 bytes together.
  explicit PackedTexts(const std::array<std::string_view, N>& texts) {
    Ends ends;
    std::size_t length = 0;
    for (std::size_t i = 0; i < N; ++i) ends[i] = static_cast<std::uint16_t>(length += texts[i].size());
    piece_ = std::make_unique_for_overwrite<char[]>(sizeof ends + length);
    std::memcpy(piece_.get(), &ends, sizeof ends);
    char* to = piece_.get() + sizeof ends;
    for (const std::string_view text : texts) to = std::copy(text.begin(), text.end(), to);
  }
  PackedTexts(const PackedTexts& other) {
    if (!other.piece_) return;
    const std::size_t size = sizeof(Ends) + other.Where().back();
    piece_ = std::make_unique_for_overwrite<char[]>(size);
    std::memcpy(piece_.get(), other.piece_.get(), size);
  }
  PackedTexts(PackedTexts&&) noexcept = default;
  PackedTexts& operator=(PackedTexts other) noexcept {
    piece_ = std::move(other.piece_);
    return *this;
  }
  ~PackedTexts() = default;

  std::string_view operator[](std::size_t i) const {
    if (!piece_) return {};
    const Ends ends = Where();
    const std::size_t begin = i == 0 ? 0 : ends[i - 1];
    return {piece_.get() + sizeof ends + begin, ends[i] - begin};
  }

 private:
  using Ends = std::array<std::uint16_t, N>;
  Ends Where() const {
    Ends ends;
    std::memcpy(&ends, piece_.get(), sizeof ends);
    return ends;
  }

  std::unique_ptr<char[]> piece_;  // the ends of the texts, then the texts; none: all are empty
};

}  // namespace kestrel
