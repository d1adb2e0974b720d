#pragma once

#include <numbers>

#include "core/SessionState.h"

// The zoom and pattern size commands of the main map: steps of the square root of 2 within ViewLimits.h.

namespace kestrel {

/// What a zoom command multiplies the scale by.
inline constexpr double ZoomStep = std::numbers::sqrt2;

/// The scale times `factor`, held within its limits.
void ZoomBy(SessionState& state, double factor);

void ZoomIn(SessionState& state);
void ZoomOut(SessionState& state);
void EnlargePatterns(SessionState& state);
void ShrinkPatterns(SessionState& state);

/// Whether the map can still be zoomed in or out.
bool CanZoomIn(const SessionState& state);
bool CanZoomOut(const SessionState& state);

}  // namespace kestrel
