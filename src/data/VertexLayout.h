#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace kestrel {

/// Where the signs, digits and points of a vertex line stand: two fractions, "-26.4645 254.5387", each of two
/// to eight characters after its sign with a point among them, the first of at most two digits before it;
/// one blank between them and a line end after them.
///
/// A coast runs on in short steps, so that nearly every line is laid out as the one before. A comparison of
/// its characters with those that may stand there finds that out; then nothing in it need be looked for, and
/// no number waits for the one in front of it. Pen-up and end marks have no layout.
class VertexLayout {
 public:
  /// The layout of the line at the front of `bytes`; nothing for any other line, and when the bytes are
  /// fewer than 32.
  static std::optional<VertexLayout> Of(std::string_view bytes);

  /// How many lines at the front of `bytes` have this layout; at most `most` are counted, and none within
  /// 32 bytes of their end.
  std::size_t CountLines(std::string_view bytes, std::size_t most) const;

  /// The numbers of as many lines as there is room for, degrees. REQUIRES: the lines have this layout.
  void ReadLines(std::string_view lines, std::span<float> latitudes, std::span<float> longitudes) const;

  /// Of a line, its end included.
  std::size_t LineLength() const { return lineLength_; }

 private:
  static constexpr std::size_t kWindow = 32;  // characters looked at; no line that has a layout is longer
  using Half [[gnu::vector_size(kWindow / 2)]] = std::uint8_t;
  using Window = std::array<Half, 2>;

  struct Fraction {
    std::size_t begin = 0;   // of its digits
    std::size_t whole = 0;   // digits before the point
    int after = 0;           // bits of the eight characters from `begin` on that stand after it
    std::uint64_t back = 0;  // its digits after the point, when those bits have been shifted out
    float divisor = 1;       // a power of ten with the number's sign

    /// Passes over the fraction at `at`, of which no more than eleven characters are looked at.
    static std::optional<Fraction> Of(const char* line, std::size_t& at);
    float Read(const char* line) const;
  };

  bool IsOf(const char* line) const;

  Fraction latitude_, longitude_;
  std::size_t lineLength_ = 0;
  Window least_ = {};  // of the characters that may stand in each place; any may after the line
  Window range_ = {};  // how far above
};

}  // namespace kestrel
