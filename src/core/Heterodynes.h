#pragma once

#include <optional>
#include <string>

// The beat notes between a channel of the 10 kHz grid of the Americas and the 9 kHz grid used elsewhere.

namespace kestrel {

inline constexpr int LowestGridChannel = 531;    ///< kHz
inline constexpr int HighestGridChannel = 1611;  ///< kHz
inline constexpr int GridStep = 9;               ///< kHz

/// The whistle that a station on a channel of the 9 kHz grid makes.
struct Heterodyne {
  float BeatKHz = 0;    ///< above 0, below GridStep
  int GridChannel = 0;  ///< kHz
  bool operator==(const Heterodyne&) const = default;
};

/// What a channel suffers from its two neighbours on the 9 kHz grid.
struct Heterodynes {
  float Frequency = 0;  ///< kHz, the channel asked about
  std::optional<Heterodyne> Below;
  std::optional<Heterodyne> Above;
  bool OnGrid = false;  ///< the channel is itself one of the grid's; its neighbours are too far to be heard
};

/// Any frequency is accepted; one more than 8 kHz outside the grid has neither neighbour.
Heterodynes FindHeterodynes(float frequency);

/// The three lines shown to the listener. A line with nothing to say is empty.
struct HeterodyneTexts {
  std::string Current;  ///< "Current frequency:  1230 kHz"
  std::string Below;    ///< "6 kHz beat note from station on 1224 kHz"
  std::string Above;    ///< likewise, or "No heterodynes of 8 kHz or lower" for a channel of the grid
};

HeterodyneTexts TextsOf(const Heterodynes& heterodynes);

}  // namespace kestrel
