#pragma once

// The medium-wave band of the Americas, one channel every 10 kHz.

namespace kestrel {

inline constexpr float LowestChannel = 530;    ///< kHz
inline constexpr float HighestChannel = 1700;  ///< kHz
inline constexpr float ChannelStep = 10;       ///< kHz

/// Whether a frequency in kHz lies within the band; NaN does not.
constexpr bool IsInBand(float frequency) {
  return frequency >= LowestChannel && frequency <= HighestChannel;
}

}  // namespace kestrel
