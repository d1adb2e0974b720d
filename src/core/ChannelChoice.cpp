#include "core/ChannelChoice.h"

#include "core/Band.h"
#include "core/Numbers.h"

namespace kestrel {

float OfferChannel(SessionState& state) {
  // The window accepts a little more than the band here, on purpose.
  constexpr float kLowestOffered = LowestChannel - ChannelStep;
  constexpr float kFirstRefused = HighestChannel + ChannelStep;
  if (state.CurrentFrequency > 0) state.PreviousFrequency = state.CurrentFrequency;
  const bool offered = state.CurrentFrequency >= kLowestOffered && state.CurrentFrequency < kFirstRefused;
  return offered ? state.CurrentFrequency : state.PreviousFrequency;
}

std::optional<std::string> EnterChannel(SessionState& state, std::string_view entry,
                                        const std::string& overLimitMessage) {
  state.AdjacentsShown = 0;
  state.PreviousFrequency = state.CurrentFrequency;
  state.CurrentFrequency = ParseNumber(entry);
  if (state.CurrentFrequency > HighestChannel) {
    state.CurrentFrequency = HighestChannel;
    return overLimitMessage;
  }
  if (state.CurrentFrequency < LowestChannel) {
    state.CurrentFrequency = state.PreviousFrequency;
    return "Entry reset to " + NumberText(state.PreviousFrequency);
  }
  return std::nullopt;
}

std::optional<std::string> StepUp(SessionState& state) {
  state.AdjacentsShown = 0;
  state.CurrentFrequency += ChannelStep;
  if (state.CurrentFrequency <= HighestChannel) return std::nullopt;
  state.CurrentFrequency = HighestChannel;
  return "Frequency over 1700 reset to 1700";
}

std::optional<std::string> StepDown(SessionState& state) {
  state.AdjacentsShown = 0;
  state.CurrentFrequency -= ChannelStep;
  if (state.CurrentFrequency >= LowestChannel) return std::nullopt;
  state.CurrentFrequency = LowestChannel;
  return "Frequency under 530 reset to 530";
}

}  // namespace kestrel
