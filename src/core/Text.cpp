#include "core/Text.h"

#include <algorithm>

namespace kestrel {
namespace {

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// Length in bytes of the well-formed sequence at the front of `bytes`; 0 when there is none.
std::size_t SequenceLength(std::string_view bytes) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned char lead = at(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xC2 && lead < 0xE0   ? 2
                             : lead >= 0xE0 && lead < 0xF0 ? 3
                             : lead >= 0xF0 && lead < 0xF5 ? 4
                                                           : 0;
  if (length == 0 || bytes.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if (!IsContinuation(bytes[i])) return 0;
  if (lead == 0xE0 && at(1) < 0xA0) return 0;  // overlong
  if (lead == 0xED && at(1) > 0x9F) return 0;  // surrogate
  if (lead == 0xF0 && at(1) < 0x90) return 0;  // overlong
  if (lead == 0xF4 && at(1) > 0x8F) return 0;  // beyond U+10FFFF
  return length;
}

/// Offset of the character that stands `count` characters after `from`, or the end.
std::size_t Advance(std::string_view text, std::size_t from, std::size_t count) {
  while (count > 0 && from < text.size()) {
    do ++from;
    while (from < text.size() && IsContinuation(text[from]));
    --count;
  }
  return from;
}

}  // namespace

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = SequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::string FromLatin1(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    if (code < 0x80) {
      text += byte;
    } else {
      text += static_cast<char>(0xC0 | (code >> 6));
      text += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
  return text;
}

std::size_t CharacterCount(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), IsContinuation));
}

std::string_view Columns(std::string_view text, std::size_t first, std::size_t width) {
  const std::size_t begin = Advance(text, 0, first - 1);
  return text.substr(begin, Advance(text, begin, width) - begin);
}

std::string PadTo(std::string text, std::size_t width) {
  const std::size_t length = CharacterCount(text);
  if (length < width) text.append(width - length, ' ');
  return text;
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  for (std::size_t i = 0; i < upper.size(); ++i) {
    const auto code = static_cast<unsigned char>(upper[i]);
    if (code >= 'a' && code <= 'z') upper[i] = static_cast<char>(code - 32);
    // U+00E0 to U+00FE is C3 A0 to C3 BE; the division sign U+00F7 (C3 B7) has no case.
    const bool latin = i > 0 && static_cast<unsigned char>(upper[i - 1]) == 0xC3;
    if (latin && code >= 0xA0 && code <= 0xBE && code != 0xB7) upper[i] = static_cast<char>(code - 32);
  }
  return upper;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char x, char y) { return lower(x) == lower(y); });
}

}  // namespace kestrel
