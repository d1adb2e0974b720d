#pragma once

#include <algorithm>

// How far the map's view can be changed, and how much of that the last-session file keeps.

namespace kestrel {

struct Limits {
  float Lowest;
  float Highest;

  constexpr float Hold(float value) const { return std::clamp(value, Lowest, Highest); }
};

inline constexpr Limits ScaleLimits = {50, 10000};       ///< twips for 75 km
inline constexpr Limits PatternSizeLimits = {0.02F, 2};  ///< relative size of the patterns
inline constexpr float LargestAspect = 10;               ///< above 0; the aspect window knows no limit

// A last-session file holds less: a map zoomed out farther or with larger patterns opens at these.
inline constexpr Limits SavedScaleLimits = {100, 10000};
inline constexpr Limits SavedPatternSizeLimits = {0.02F, 1};
inline constexpr Limits SavedAspectLimits = {0.6F, 1.5F};

}  // namespace kestrel
