#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/SessionState.h"

// The rules by which a channel is entered or stepped, shared by the frequency window and the keyboard. Each
// returns the message to show, if there is one.

namespace kestrel {

/// The channel that the entry box shows at opening. Remembers the present one, when above 0, as
/// `PreviousFrequency`; outside 520 to 1710 kHz that one is shown instead.
float OfferChannel(SessionState& state);

/// Takes a typed channel (kHz, suffixes allowed) without its adjacents. Above 1700 it becomes 1700 and
/// `overLimitMessage` is the answer; below 530 it falls back to the channel before it.
std::optional<std::string> EnterChannel(SessionState& state, std::string_view entry,
                                        const std::string& overLimitMessage);

/// One channel up or down, within 530 to 1700 kHz, without its adjacents.
std::optional<std::string> StepUp(SessionState& state);
std::optional<std::string> StepDown(SessionState& state);

}  // namespace kestrel
