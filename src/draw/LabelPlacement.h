#pragma once

#include <optional>

#include "draw/SurfaceView.h"
#include "map/DisplayList.h"
#include "map/LabelSpace.h"

namespace kestrel {

/// Where a list's labels come on a surface, so that none covers another, a panel or the mark of home. Only
/// there are the sizes of letters known.
///
/// A label begins 60 twips left of its station. It is tried just above the station, just below, and a line
/// farther off on both sides; one that touches something in all four places, or would be cut by the surface's
/// edge, is left out. Those of the chosen channel go first, then by weight, then in drawing order. A label
/// that touches one of the same text beside it is the same station's and is left out, too.
class LabelPlacement {
 public:
  /// Places all labels of the list.
  void PlaceAll(const DisplayList& list, const SurfaceRules& rules);

  /// Places those that were drawn since, around those there are, which stay. Panels drawn since count.
  void PlaceMore(const DisplayList& list, const SurfaceRules& rules);

  /// The place of each label's upper left corner on the sheet; nothing for one that is left out. All of them
  /// or none when the rules say so.
  const LabelPlaces& Places() const { return places_; }

 private:
  void TakeFixedBoxes(const DisplayList& list, const SurfaceRules& rules);

  std::optional<LabelSpace> space_;
  LabelPlaces places_;
  std::size_t panelsTaken_ = 0;
};

/// The labels that are drawn over a place of the surface, by the rules and places they were drawn with.
std::vector<std::uint32_t> LabelsAt(const DisplayList& list, const SurfaceRules& rules,
                                    const LabelPlaces& places, const QPointF& at);

/// Plays a list on a canvas of a surface with the rules, its labels placed.
void PlayPlaced(const DisplayList& list, const SurfaceRules& rules, Canvas& canvas);

}  // namespace kestrel
