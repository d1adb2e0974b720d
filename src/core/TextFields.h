#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/EightCharacters.h"

// Cutting a data line into its fields, front to back.
//
// Separators at the front are skipped, the field runs to the next separator or the end, and all separators
// after it go with it. So a run of separators counts as one, an empty field cannot be expressed, and blanks
// inside a comma-separated field stay.

namespace kestrel {

/// Cuts the next field off `line`. Nothing, and an empty line, when only separators are left. Fields are a
/// few characters long, so looking at one after the other is quicker than searching.
inline std::optional<std::string_view> CutField(std::string_view& line, char separator) {
  const char* at = line.data();
  const char* const end = at + line.size();
  const auto skipSeparators = [&] {
    while (at != end && *at == separator) ++at;
  };
  skipSeparators();
  const char* const begin = at;
  while (at != end && *at != separator) ++at;
  const std::string_view field(begin, static_cast<std::size_t>(at - begin));
  skipSeparators();
  line = at == end ? std::string_view{} : std::string_view(at, static_cast<std::size_t>(end - at));
  return field.empty() ? std::nullopt : std::optional(field);
}

/// Cuts the next comma-separated field off `line`: the rule of the station files, whose readers take all of a
/// line's fields at once with FirstFields.
inline std::optional<std::string_view> NextField(std::string_view& line) {
  return CutField(line, ',');
}

/// The first N comma-separated fields of a line, as NextField cuts them one after the other; those that the
/// line lacks are empty. Eight characters at a time: it saves a tenth of the reading of station files.
template <std::size_t N>
std::array<std::string_view, N> FirstFields(std::string_view line) {
  std::array<std::string_view, N> fields;
  std::size_t count = 0;
  const char* at = line.data();
  const char* const end = at + line.size();
  const char* begin = at;  // of the present field
  const auto endField = [&](const char* comma) {
    if (comma != begin) fields[count++] = {begin, static_cast<std::size_t>(comma - begin)};
    begin = comma + 1;
  };
  for (; end - at >= 8; at += 8)
    for (std::uint64_t commas = CommasAmong(EightCharacters(at)); commas != 0; commas &= commas - 1) {
      endField(at + BytesBefore(commas));
      if (count == N) return fields;
    }
  for (; at != end; ++at)
    if (*at == ',') {
      endField(at);
      if (count == N) return fields;
    }
  if (begin != end) fields[count] = {begin, static_cast<std::size_t>(end - begin)};
  return fields;
}

/// Cuts the next blank-separated field off `line`: the rule of the outline files, for every map.
inline std::optional<std::string_view> NextBlankField(std::string_view& line) {
  return CutField(line, ' ');
}

/// The same for words of any other line; the program has none so far.
inline std::optional<std::string_view> NextWord(std::string_view& line) {
  return NextBlankField(line);
}

}  // namespace kestrel
