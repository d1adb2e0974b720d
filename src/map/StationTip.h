#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/SessionState.h"
#include "data/DataFolder.h"
#include "map/Canvas.h"

// What the map says of the station under the mouse.

namespace kestrel {

/// How far from a station's mark the mouse may rest, in pixels of an ordinary screen.
inline constexpr float TipReach = 10;

/// The mark nearest to the point and at most `radius` twips away; of several at one place the one drawn last.
/// The pointer holds as long as the marks.
const StationMark* NearestStation(std::span<const StationMark> marks, Point point, float radius);

/// Lines of words on the station of a mark, read from its channel's file: call sign, city and state; power
/// and hours of each of its records that the hours filter lets through; distance and bearing from home.
/// Nothing when the file holds no such station any more.
///
///     "1230 kHz QABC  Springfield, IL"
///     "1 kW daytime, 250 watts nighttime"
///     "412.3 km, 88.4 deg"
std::optional<std::string> StationTip(const DataFolder& folder, const SessionState& state,
                                      const StationMark& mark);

/// The same of several records' stations, the one with the most power over the square of its distance from
/// home first. Of more than one station each has a line, of more than eight the last line tells how many more
/// there are. Empty when the files hold none of them.
///
///     "1230 kHz QABC  Springfield, IL: 1 kW daytime, 250 watts nighttime; 412.3 km, 88.4 deg"
std::string StationsTip(const DataFolder& folder, const SessionState& state, std::vector<StationMark> marks);

/// Whether a click on the mark opens the station lookup, which knows the current channel only.
bool OpensLookup(const StationMark& mark, const SessionState& state);

/// "5 kW", "250 watts".
std::string PowerText(float powerKW);

/// "412.3 km, 88.4 deg": distance in the session's unit and true bearing from home, one decimal, truncated.
std::string FromHomeText(const SessionState& state, float latitude, float longitudeWest);

}  // namespace kestrel
