#pragma once

#include "field/GroundWave.h"
#include "field/Ranking.h"

namespace kestrel {

/// What the listener says of his place and by which hours he wants stations judged; kept between runs.
struct ListenerChoices {
  double Ground = AverageConductivity;    ///< mS/m
  double NeededLevel = UsualNeededLevel;  ///< dB above 1 uV/m
  HoursRule Rule = HoursRule::Auto;
  bool operator==(const ListenerChoices&) const = default;
};

/// Kept values outside their ranges read as those of a first start.
ListenerChoices LoadListenerChoices();
void SaveListenerChoices(const ListenerChoices& choices);

}  // namespace kestrel
