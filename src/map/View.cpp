#include "map/View.h"

#include "core/ViewLimits.h"

namespace kestrel {
namespace {

float Stepped(double value, double factor, const Limits& limits) {
  return limits.Hold(static_cast<float>(value * factor));
}

}  // namespace

void ZoomBy(SessionState& state, double factor) {
  state.ScaleFactor = Stepped(state.ScaleFactor, factor, ScaleLimits);
}

void ZoomIn(SessionState& state) {
  ZoomBy(state, ZoomStep);
}

void ZoomOut(SessionState& state) {
  ZoomBy(state, 1 / ZoomStep);
}

void EnlargePatterns(SessionState& state) {
  state.PatternSize = Stepped(state.PatternSize, ZoomStep, PatternSizeLimits);
}

void ShrinkPatterns(SessionState& state) {
  state.PatternSize = Stepped(state.PatternSize, 1 / ZoomStep, PatternSizeLimits);
}

bool CanZoomIn(const SessionState& state) {
  return state.ScaleFactor < ScaleLimits.Highest;
}

bool CanZoomOut(const SessionState& state) {
  return state.ScaleFactor > ScaleLimits.Lowest;
}

}  // namespace kestrel
