#pragma once

#include "core/SessionState.h"

// The zoom and pattern size commands of the main map: steps of the square root of 2 within ViewLimits.h.

namespace kestrel {

void ZoomIn(SessionState& state);
void ZoomOut(SessionState& state);
void EnlargePatterns(SessionState& state);
void ShrinkPatterns(SessionState& state);

/// Whether the map can still be zoomed in or out.
bool CanZoomIn(const SessionState& state);
bool CanZoomOut(const SessionState& state);

}  // namespace kestrel
