#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/EightCharacters.h"

// Text is UTF-8 throughout. Lengths and columns count characters (code points), never bytes.

namespace kestrel {

/// Without the blanks (U+0020) at both ends.
inline std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  // Columns are often filled up with many.
  while (text.size() >= 8) {
    const std::uint64_t others = EightCharacters(text.data() + text.size() - 8) ^ 0x0101010101010101 * ' ';
    const auto blanks = static_cast<std::size_t>(std::countl_zero(others) / 8);
    text.remove_suffix(blanks);
    if (blanks < 8) return text;
  }
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

/// Whether the bytes are well-formed UTF-8 (RFC 3629: no overlong form, no surrogate, at most U+10FFFF).
bool IsUtf8(std::string_view bytes);

/// Each byte taken as the character of that number (ISO 8859-1).
std::string FromLatin1(std::string_view bytes);

std::size_t CharacterCount(std::string_view text);

/// The characters of columns `first` to `first + width - 1`, columns counted from 1. Columns after the end
/// of the text give nothing, so the result may be shorter than `width` or empty.
std::string_view Columns(std::string_view text, std::size_t first, std::size_t width);

/// Blanks added until the text is `width` characters long; a longer text stays as it is.
std::string PadTo(std::string text, std::size_t width);

/// Capital letters for the small ones of ASCII and Latin-1 (ñ, é, ...); everything else as it stands.
std::string UpperCase(std::string_view text);

/// Whether the two are the same but for the case of ASCII letters.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

}  // namespace kestrel
