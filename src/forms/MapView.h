#pragma once

#include <functional>
#include <optional>

#include "core/SessionState.h"
#include "map/Canvas.h"

namespace kestrel {

class MapSurface;

/// Which part of the map is seen, and how large: scale, pattern size and how far the map has been moved.
class MapView {
 public:
  MapView(SessionState& state, MapSurface& surface);

  /// Draws the map anew; called when scale or pattern size have changed.
  std::function<void()> Redraw;

  /// Makes the map so many times as large, as far as it goes, around a place of the sheet; without one around
  /// where home stands while the map is not moved.
  void Zoom(double factor, std::optional<Point> around = {});

  /// Changes the size of the patterns.
  void Change(void (*change)(SessionState&));

  /// Home to the middle, scale and pattern size those of a first start.
  void Reset();

  /// Moves the map until a place of the sheet stands where home does while the map is not moved.
  void CentreOn(Point place);

  /// What a view for some time goes back to: the next zoom out or channel. Takes what is now, before that
  /// view is set.
  class Present {
   public:
    explicit Present(const MapView& view);

   private:
    friend class MapView;
    float scale_, patternSize_;
    Point moved_;
  };
  /// Remembers `before` if the view is another one now, with home in its middle.
  void RememberIfChanged(const Present& before);
  /// Goes back to what was remembered, without drawing. Returns whether there was anything.
  bool GoBack();

 private:
  SessionState& state_;
  MapSurface& surface_;
  std::optional<Present> remembered_;
};

}  // namespace kestrel
