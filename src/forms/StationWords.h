#pragma once

#include <QString>
#include <vector>

#include "core/Moment.h"
#include "core/SessionState.h"
#include "forms/ListedStations.h"
#include "map/Canvas.h"

// What is said of stations by their fields at home.

namespace kestrel {

/// "2026-11-22 03:12 UTC".
QString HourText(Moment moment);

/// "1510 kHz", "1510, 1500 and 1520 kHz".
QString ChannelsText(const std::vector<float>& frequencies);

/// "41 dB above 1 uV/m, likely: sky wave"; "silent: day only".
QString FieldText(const ListedStation& station);

/// "QABC 1510 kHz: 512 km, 47 deg. To null it, turn a loop's plane to 137 or 317 deg".
QString ChosenText(const ListedStation& station, int distanceUnit);

/// One sentence on what is on the air: "1510 kHz at Plano TX, 2026-11-22 03:12 UTC: 41 on the air, the
/// strongest QABC SPRINGFIELD IL 57 dB likely, ...".
QString SentenceOn(const std::vector<ListedStation>& stations, const std::vector<float>& frequencies,
                   const SessionState& state, Moment moment);

/// The record that a mark of the map stands for, the one on the air before others of its station; nullptr
/// when there is none.
const ListedStation* StationOf(const std::vector<ListedStation>& stations, const StationMark& mark,
                               const SessionState& state);

}  // namespace kestrel
