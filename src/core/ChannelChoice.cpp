#include "core/ChannelChoice.h"

#include "core/Numbers.h"

namespace kestrel {
namespace {

constexpr float kLowest = 530;
constexpr float kHighest = 1700;
constexpr float kStep = 10;

}  // namespace

float OfferChannel(SessionState& state) {
  // The window accepts a little more than the band here, on purpose.
  constexpr float kLowestOffered = 520;
  constexpr float kFirstRefused = 1710;
  if (state.CurrentFrequency > 0) state.PreviousFrequency = state.CurrentFrequency;
  const bool offered = state.CurrentFrequency >= kLowestOffered && state.CurrentFrequency < kFirstRefused;
  return offered ? state.CurrentFrequency : state.PreviousFrequency;
}

std::optional<std::string> EnterChannel(SessionState& state, std::string_view entry,
                                        const std::string& overLimitMessage) {
  state.AdjacentsShown = 0;
  state.PreviousFrequency = state.CurrentFrequency;
  state.CurrentFrequency = ParseNumber(entry);
  if (state.CurrentFrequency > kHighest) {
    state.CurrentFrequency = kHighest;
    return overLimitMessage;
  }
  if (state.CurrentFrequency < kLowest) {
    state.CurrentFrequency = state.PreviousFrequency;
    return "Entry reset to " + NumberText(state.PreviousFrequency);
  }
  return std::nullopt;
}

std::optional<std::string> StepUp(SessionState& state) {
  state.AdjacentsShown = 0;
  state.CurrentFrequency += kStep;
  if (state.CurrentFrequency <= kHighest) return std::nullopt;
  state.CurrentFrequency = kHighest;
  return "Frequency over 1700 reset to 1700";
}

std::optional<std::string> StepDown(SessionState& state) {
  state.AdjacentsShown = 0;
  state.CurrentFrequency -= kStep;
  if (state.CurrentFrequency >= kLowest) return std::nullopt;
  state.CurrentFrequency = kLowest;
  return "Frequency under 530 reset to 530";
}

}  // namespace kestrel
