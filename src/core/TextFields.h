#pragma once

#include <optional>
#include <string_view>

// Cutting a data line into its fields, front to back.
//
// Separators at the front are skipped, the field runs to the next separator or the end, and all separators
// behind it go with it. So a run of separators counts as one, an empty field cannot be expressed, and blanks
// inside a comma-separated field stay.

namespace kestrel {

/// Cuts the next comma-separated field off `line`. Nothing, and an empty line, when only commas are left.
std::optional<std::string_view> NextField(std::string_view& line);

/// Cuts the next blank-separated field off `line`, in the same way. Used by the states map.
std::optional<std::string_view> NextWord(std::string_view& line);

/// Cuts the next blank-separated field off `line`, in the same way. Used by the outline files.
std::optional<std::string_view> NextBlankField(std::string_view& line);

}  // namespace kestrel
