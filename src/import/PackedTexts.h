#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kestrel {

/// A few short texts held in one piece. An import keeps some for every row of its files at once, and strings
/// of their own would take more room than the row.
template <std::size_t N>
class PackedTexts {
 public:
  PackedTexts() = default;
  /// REQUIRES: the texts have at most 65535 bytes together.
  explicit PackedTexts(const std::array<std::string_view, N>& texts) {
    std::size_t length = 0;
    for (const std::string_view text : texts) length += text.size();
    bytes_.reserve(length);
    for (std::size_t i = 0; i < N; ++i) {
      bytes_ += texts[i];
      ends_[i] = static_cast<std::uint16_t>(bytes_.size());
    }
  }

  std::string_view operator[](std::size_t i) const {
    const std::size_t begin = i == 0 ? 0 : ends_[i - 1];
    return std::string_view(bytes_).substr(begin, ends_[i] - begin);
  }

 private:
  std::string bytes_;
  std::array<std::uint16_t, N> ends_{};
};

}  // namespace kestrel
