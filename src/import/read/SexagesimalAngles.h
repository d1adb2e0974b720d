#pragma once

#include <string_view>

#include "core/Result.h"
#include "import/SitePosition.h"

namespace kestrel {

/// One angle as the FCC's files give it.
struct SexagesimalText {
  std::string_view Direction, Degrees, Minutes, Seconds;
};

/// The position of two angles in degrees (whole), minutes (whole, below 60) and seconds (below 60, or 60.0
/// where rounding made it so) with "N" or "S", "W" or "E". Errors: the sentence that says which part is
/// wrong, kind Malformed, without file and line.
Result<SitePosition> ReadSitePosition(const SexagesimalText& latitude, const SexagesimalText& longitude);

}  // namespace kestrel
