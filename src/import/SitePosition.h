#pragma once

#include <string>
#include <string_view>

#include "core/Result.h"

namespace kestrel {

/// An antenna site, decimal degrees.
struct SitePosition {
  double latitude = 0;   ///< north positive
  double longitude = 0;  ///< WEST positive
};

/// One angle as the FCC's files give it.
struct SexagesimalText {
  std::string_view direction, degrees, minutes, seconds;
};

/// The position of two angles in degrees (whole), minutes (whole, below 60) and seconds (below 60, or 60.0
/// where rounding made it so) with "N" or "S", "W" or "E". Errors: the sentence that says which part is
/// wrong, kind Malformed, without file and line.
Result<SitePosition> ReadSitePosition(const SexagesimalText& latitude, const SexagesimalText& longitude);

/// Whether the site lies in the Americas, their Antarctic bases among them: 20 to 180 west.
bool IsInAmericas(const SitePosition& position);

/// Great-circle distance in km, exact for neighbours too.
double SiteDistance(const SitePosition& a, const SitePosition& b);

}  // namespace kestrel
