#pragma once

#include <functional>

#include "draw/Fonts.h"
#include "forms/TimeBar.h"
#include "forms/Workspace.h"
#include "map/MomentMap.h"

namespace kestrel {

class MapSurface;

/// The main map at the moment of the time bar, while that is shown. Moving in time draws from what was read.
class MapHour {
 public:
  MapHour(const Workspace& workspace, MapSurface& surface, TimeBar& bar);

  /// How the records in force are told.
  HoursRule Rule = HoursRule::Auto;
  /// Called when the map has been drawn for another moment.
  std::function<void()> Moved;

  bool IsOn() const { return !bar_.isHidden(); }
  /// Shows the bar, which then follows the clock, or hides it. Draws nothing.
  void Turn(bool on);

  /// Reads the map of the session, from empty paper or on top of what is there, and draws it. Returns what
  /// the readers left out. REQUIRES: IsOn().
  std::vector<std::string> Redraw(MapGround ground);

 private:
  void Draw();

  Workspace workspace_;
  MapSurface& surface_;
  TimeBar& bar_;
  PlatformTextMeasure measure_;
  MomentMap map_{measure_};
};

}  // namespace kestrel
