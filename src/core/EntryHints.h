#pragma once

#include <string_view>

// Short hints for people who type positions. They explain and hold nothing back: what a text is worth, the
// number routine says.

namespace kestrel {

/// "No number here" for a text without a digit, "Latitude beyond 90" for one that reads so; else empty. An
/// empty text needs no hint.
std::string_view LatitudeHint(std::string_view text);

/// As LatitudeHint, but any number will do.
std::string_view LongitudeHint(std::string_view text);

}  // namespace kestrel
