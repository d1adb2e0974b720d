#include "core/Heterodynes.h"

#include <cmath>

#include "core/Numbers.h"

namespace kestrel {
namespace {

std::string BeatText(const std::optional<Heterodyne>& heterodyne) {
  if (!heterodyne) return {};
  return NumberText(heterodyne->BeatKHz) + " kHz beat note from station on " +
         std::to_string(heterodyne->GridChannel) + " kHz";
}

}  // namespace

Heterodynes FindHeterodynes(float frequency) {
  Heterodynes found{frequency, {}, {}, false};
  for (int channel = LowestGridChannel; channel <= HighestGridChannel; channel += GridStep) {
    const float beat = std::abs(frequency - static_cast<float>(channel));
    if (beat == 0) found.OnGrid = true;
    if (!(beat > 0 && beat < GridStep)) continue;
    (static_cast<float>(channel) < frequency ? found.Below : found.Above) = {beat, channel};
  }
  return found;
}

HeterodyneTexts TextsOf(const Heterodynes& heterodynes) {
  return {"Current frequency: " + SignedNumberText(heterodynes.Frequency) + " kHz",
          BeatText(heterodynes.Below),
          heterodynes.OnGrid ? "No heterodynes of 8 kHz or lower" : BeatText(heterodynes.Above)};
}

}  // namespace kestrel
