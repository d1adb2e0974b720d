#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

// Eight characters of a text looked at together, as the bytes of one word. A set of them is a word with
// bit 7 set in the bytes that belong to it.

namespace kestrel {

/// The characters from `at` on, the first in the lowest byte.
inline std::uint64_t EightCharacters(const char* at) {
  std::uint64_t bytes = 0;
  std::memcpy(&bytes, at, sizeof bytes);
  return std::endian::native == std::endian::big ? __builtin_bswap64(bytes) : bytes;
}

/// The bytes of `bytes` that are at least `least`, 1 to 128.
inline std::uint64_t BytesFrom(std::uint64_t bytes, unsigned least) {
  constexpr std::uint64_t kLow7 = 0x7F7F7F7F7F7F7F7F;
  // Bit 7 of a sum is set where the low bits reach that far; no sum carries into the next byte.
  return (((bytes & kLow7) + 0x0101010101010101 * (128 - least)) | bytes) & ~kLow7;
}

/// Those of the characters that are commas.
inline std::uint64_t CommasAmong(std::uint64_t characters) {
  return ~BytesFrom(characters ^ (0x0101010101010101 * ','), 1) & 0x8080808080808080;
}

/// How many bytes stand before the first of a set; 8 when the set is empty.
inline int BytesBefore(std::uint64_t set) {
  return std::countr_zero(set) / 8;
}

/// The number that eight decimal digits write, given as values 0 to 9, the first in the lowest byte. Digits
/// are joined to pairs, pairs to fours and fours to the whole, each step in all bytes at once.
inline std::uint64_t EightDigits(std::uint64_t digits) {
  const std::uint64_t pairs = (digits * 10 + (digits >> 8)) & 0x00FF00FF00FF00FF;
  const std::uint64_t fours = (pairs * 100 + (pairs >> 16)) & 0x0000FFFF0000FFFF;
  return (fours * 10000 + (fours >> 32)) & 0xFFFFFFFF;
}

}  // namespace kestrel
