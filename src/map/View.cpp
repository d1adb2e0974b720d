#include "map/View.h"

#include <numbers>

#include "core/ViewLimits.h"

namespace kestrel {
namespace {

float Stepped(double value, double factor, const Limits& limits) {
  return limits.Hold(static_cast<float>(value * factor));
}

constexpr double kStep = std::numbers::sqrt2;

}  // namespace

void ZoomIn(SessionState& state) {
  state.ScaleFactor = Stepped(state.ScaleFactor, kStep, ScaleLimits);
}

void ZoomOut(SessionState& state) {
  state.ScaleFactor = Stepped(state.ScaleFactor, 1 / kStep, ScaleLimits);
}

void EnlargePatterns(SessionState& state) {
  state.PatternSize = Stepped(state.PatternSize, kStep, PatternSizeLimits);
}

void ShrinkPatterns(SessionState& state) {
  state.PatternSize = Stepped(state.PatternSize, 1 / kStep, PatternSizeLimits);
}

bool CanZoomIn(const SessionState& state) {
  return state.ScaleFactor < ScaleLimits.Highest;
}

bool CanZoomOut(const SessionState& state) {
  return state.ScaleFactor > ScaleLimits.Lowest;
}

}  // namespace kestrel
