#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/Hours.h"
#include "core/Palette.h"
#include "core/Position.h"

namespace kestrel {

/// The settings of the running program. `main` owns the one instance and hands it to every window; part of it
/// is kept between runs in the last-session file. The member values here are those of a first start.
struct SessionState {
  // Kept in the last-session file, in its order.
  float CurrentFrequency = 620;  ///< channel shown, kHz
  std::string HomeName = "Plano   TX";
  float HomeLatitude = 33.24278F;   ///< degrees, north positive
  float HomeLongitude = 96.54139F;  ///< degrees, west positive
  float PatternSize = 0.5F;         ///< relative size of the drawn patterns, within PatternSizeLimits
  float ScaleFactor = 200;          ///< twips per 75 km of ground, within ScaleLimits
  std::int16_t DistanceUnit = 0;    ///< 0 kilometres, 1 statute miles
  ColorValue DayColor = Palette::Daytime;
  ColorValue NightColor = Palette::Nighttime;
  ColorValue UnlimitedColor = Palette::Unlimited;
  ColorValue CriticalColor = Palette::Critical;
  ColorValue AdjacentColor = Palette::Adjacent;
  std::string MapLanguage;  ///< "en", "fr" or "es"; empty until the options have been opened once
  float AspectRatio = 1;    ///< widens pattern outlines; twips are square, so 1 keeps a circle round

  /// Colours of further adjacent channels; not saved.
  std::array<ColorValue, 3> FurtherAdjacentColors = {Palette::FurtherAdjacent, Palette::FurtherAdjacent,
                                                     Palette::FurtherAdjacent};

  // Of this run only.
  std::string ProgramVersion = "3.06";
  std::string SessionFileName = "Kestrel.CFG";
  float PreviousFrequency = 0;  ///< kHz, what a bad entry falls back to
  float SelectedFrequency = 0;  ///< kHz, the channel drawn in the colours of its hours; 0: none chosen yet
  std::int16_t AdjacentsShown = 0;  ///< 1 when the first adjacent channels are drawn too
  kestrel::HoursFilter HoursFilter = kestrel::HoursFilter::All;
  std::optional<std::int16_t>
      ChosenMapUnit;                 ///< of the maps' distances, chosen in the options; none: not yet
  std::int16_t CompassShown = 0;     ///< 1 when the compass is drawn over the map
  std::int16_t PlotAllStations = 0;  ///< 1 when the whole-band scan was chosen
  bool StopRequested = true;         ///< false only while the whole-band scan runs
  std::string RememberedCallSign;    ///< the last search text that was not empty; offered at the next opening
  std::vector<std::string> CityList;  ///< lines of "Kestrel.lst"
  std::vector<std::string> CallList;  ///< lines of "StationsCall.DAT"

  Position Home() const { return {HomeLatitude, HomeLongitude}; }

  /// In which the maps and their tips tell distances: 0 kilometres, 1 statute miles.
  std::int16_t MapUnit() const { return ChosenMapUnit.value_or(DistanceUnit); }
};

}  // namespace kestrel
