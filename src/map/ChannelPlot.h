#pragma once

#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

#include "core/Hours.h"
#include "core/SessionState.h"
#include "data/DataFolder.h"
#include "data/StationFile.h"
#include "map/Canvas.h"
#include "map/MapProjection.h"
#include "pattern/Pattern.h"

// One channel's stations on the main map, each with the pattern of its antenna.

namespace kestrel {

/// Width of a pattern's outline in pixels. Coasts, borders and the patterns of adjacent channels are 1 wide;
/// those of the channel chosen stand out among them.
inline constexpr float PatternLineWidth = 1.5F;

/// How a record's pattern is drawn.
struct PatternStyle {
  ColorValue Color = 0;
  float Factor = 0;  ///< size factor of the hours
};

/// Draws one channel's records, one after the other; keeps what lasts from record to record.
class ChannelPlotter {
 public:
  ChannelPlotter(Canvas& canvas, const SessionState& state, const MapProjection& projection,
                 float plotFrequency);

  /// Draws the pattern in the colour of its hours, or in the adjacent colour when adjacents are shown and
  /// this is not the selected channel, and one label for each call sign and place. A pattern that is not
  /// known, nothing here, is a filled circle.
  void Draw(const StationRecord& record, const PatternValues* pattern);

  /// A station off the air: a small open circle without a label.
  void DrawSilent(const StationRecord& record);

 private:
  void BeginStation(const StationRecord& record, Point at);
  /// Hours that are none of the four keep the colour of the record before it.
  void ChooseStyle(Hours hours);
  /// The second record of a station would print the same text on the same spot.
  void DrawLabel(const StationRecord& record, Point at);

  Canvas& canvas_;
  const SessionState& state_;
  const MapProjection& projection_;
  const float plotFrequency_;
  const bool adjacent_;
  PatternStyle style_;
  std::unordered_set<std::string> labelled_;
};

/// Computes a record's pattern; returns whether it is known.
bool HasPattern(StationRecord& record, PatternValues& pattern);

/// What plotting a channel met.
struct ChannelOutcome {
  bool FileMissing = false;        ///< there is no station file
  std::vector<std::string> Notes;  ///< what the reader left out, or why a file that is there cannot be read
};

/// Reads a channel's station file and hands out its records, which `use` may change; the outcome's notes are
/// the reader's. There is no record of a channel outside 530 to 1700 kHz.
ChannelOutcome ForEachRecord(const DataFolder& folder, float frequency,
                             const std::function<void(StationRecord&)>& use);

/// Draws every record of the channel that the hours filter lets through: its pattern in the colour of its
/// hours, or in the adjacent colour when adjacents are shown and this is not the selected channel, and one
/// label for each call sign and place. A channel outside 530 to 1700 kHz draws nothing.
ChannelOutcome PlotChannel(Canvas& canvas, const DataFolder& folder, const SessionState& state,
                           const MapProjection& projection, float plotFrequency);

/// The line of those hours, where hours are told by their lines.
Dash DashOf(Hours hours);

/// Draws the outline of a pattern around a station: 180 vertices, each two degrees, the value of azimuth k at
/// bearing k - 1.
void DrawPattern(Canvas& canvas, const SessionState& state, Point station, const PatternStyle& style,
                 const PatternValues& values);

}  // namespace kestrel
