#pragma once

#include <string>
#include <string_view>

// Who made the program, on what terms, and whose data came with it.

namespace kestrel {

inline constexpr std::string_view CopyrightText = "Copyright 2026 The KestrelII authors";

/// Copyright, licence, attributions and `stationsLine` (where the station data come from; may be empty), in
/// paragraphs with an empty line between them.
std::string AboutText(std::string_view stationsLine);

}  // namespace kestrel
