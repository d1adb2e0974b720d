#include "map/View.h"

#include <algorithm>
#include <numbers>

namespace kestrel {
namespace {

float Stepped(double value, double factor, float lowest, float highest) {
  return std::clamp(static_cast<float>(value * factor), lowest, highest);
}

constexpr double kStep = std::numbers::sqrt2;

}  // namespace

void ZoomIn(SessionState& state) {
  state.ScaleFactor = Stepped(state.ScaleFactor, kStep, SmallestScale, LargestScale);
}

void ZoomOut(SessionState& state) {
  state.ScaleFactor = Stepped(state.ScaleFactor, 1 / kStep, SmallestScale, LargestScale);
}

void EnlargePatterns(SessionState& state) {
  state.PatternSize = Stepped(state.PatternSize, kStep, SmallestPattern, LargestPattern);
}

void ShrinkPatterns(SessionState& state) {
  state.PatternSize = Stepped(state.PatternSize, 1 / kStep, SmallestPattern, LargestPattern);
}

bool CanZoomIn(const SessionState& state) {
  return state.ScaleFactor < LargestScale;
}

bool CanZoomOut(const SessionState& state) {
  return state.ScaleFactor > SmallestScale;
}

}  // namespace kestrel
