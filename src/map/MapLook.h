#pragma once

#include "map/Canvas.h"
#include "map/Labels.h"

namespace kestrel {

/// What a surface shows of a map that holds all of it: the listener's choice, which changes without drawing
/// the map again.
struct MapLook {
  LabelChoice Labels = LabelChoice::Fitting;
  bool Legend = true;
  bool Rings = false;
  bool ScaleBar = false;
  bool HourLines = false;  ///< the hours are told by broken lines as well as by colours

  static MapLook Everything() { return {LabelChoice::All, true, true, true, true}; }

  bool Shows(MapLayer layer) const {
    switch (layer) {
      case MapLayer::Legend:
        return Legend;
      case MapLayer::Rings:
        return Rings;
      case MapLayer::ScaleBar:
        return ScaleBar;
    }
    return true;
  }

  bool operator==(const MapLook&) const = default;
};

}  // namespace kestrel
