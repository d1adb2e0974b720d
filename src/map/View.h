#pragma once

#include "core/SessionState.h"

// The zoom and pattern size commands of the main map: steps of the square root of 2 within limits.

namespace kestrel {

inline constexpr float SmallestScale = 50;
inline constexpr float LargestScale = 10000;
inline constexpr float SmallestPattern = 0.02F;
inline constexpr float LargestPattern = 2;

void ZoomIn(SessionState& state);
void ZoomOut(SessionState& state);
void EnlargePatterns(SessionState& state);
void ShrinkPatterns(SessionState& state);

/// Whether the map can still be zoomed in or out.
bool CanZoomIn(const SessionState& state);
bool CanZoomOut(const SessionState& state);

}  // namespace kestrel
