#pragma once

#include <string>
#include <vector>

#include "field/OnAirStations.h"
#include "map/ChannelPlot.h"
#include "map/DisplayList.h"
#include "map/MainMap.h"

namespace kestrel {

/// The main map at a moment: night shaded, each station drawn by its records in force, those off the air as a
/// small open circle. Files are read and patterns computed once; then the map is drawn at any moments one
/// after the other.
class MomentMap {
 public:
  /// The measure must outlive the map.
  explicit MomentMap(const TextMeasure& measure) : outlines_(measure) {}

  /// Reads the map of the session as DrawMainMap does, from nothing, or its channels to lie on top of those
  /// read before. The hours filter has no part in it. Returns what the readers left out.
  std::vector<std::string> Read(const DataFolder& folder, const SessionState& state,
                                MapGround ground = MapGround::Empty);

  /// REQUIRES: a moment of the years 1950 to 2100.
  void Draw(Canvas& canvas, Moment moment, HoursRule rule);

 private:
  struct Plotted {
    StationRecord Record;
    bool IsKnown = false;  ///< its pattern
    PatternValues Pattern{};
  };
  struct Channel {
    float Frequency = 0;
    std::vector<Plotted> Records;
    OnAirStations Stations;
  };
  /// What was read at one go.
  struct Layer {
    SessionState State;
    std::vector<Channel> Channels;
    bool FileMissing = false;  ///< of the current channel
  };

  static void DrawChannel(Canvas& canvas, const SessionState& state, Channel& channel, Moment moment,
                          HoursRule rule);

  DisplayList outlines_;
  std::vector<Layer> layers_;
};

}  // namespace kestrel
