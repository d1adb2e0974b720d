#include "forms/MapView.h"

#include <utility>

#include "map/Sheet.h"
#include "map/View.h"
#include "ui/MapSurface.h"

namespace kestrel {

MapView::MapView(SessionState& state, MapSurface& surface) : state_(state), surface_(surface) {}

MapView::Present::Present(const MapView& view)
    : scale_(view.state_.ScaleFactor), patternSize_(view.state_.PatternSize), moved_(view.surface_.Moved()) {}

void MapView::Zoom(double factor, std::optional<Point> around) {
  if (factor < 1 && GoBack()) return Redraw();
  const float before = state_.ScaleFactor;
  ZoomBy(state_, factor);
  if (state_.ScaleFactor == before) return;
  const float grown = state_.ScaleFactor / before - 1;
  const Point moved = surface_.Moved();
  const Point place = around.value_or(Point{HomeOnSheet.x + moved.x, HomeOnSheet.y + moved.y});
  Redraw();
  surface_.MoveTo({moved.x + grown * (place.x - HomeOnSheet.x), moved.y + grown * (place.y - HomeOnSheet.y)});
}

void MapView::Change(void (*change)(SessionState&)) {
  change(state_);
  Redraw();
}

void MapView::Reset() {
  remembered_.reset();
  state_.ScaleFactor = SessionState().ScaleFactor;
  state_.PatternSize = SessionState().PatternSize;
  surface_.MoveTo({});
  Redraw();
}

void MapView::CentreOn(Point place) {
  surface_.MoveTo({place.x - HomeOnSheet.x, place.y - HomeOnSheet.y});
}

void MapView::RememberIfChanged(const Present& before) {
  if (state_.ScaleFactor == before.scale_ && state_.PatternSize == before.patternSize_) return;
  surface_.MoveTo({});
  if (!remembered_) remembered_ = before;
}

bool MapView::GoBack() {
  if (!remembered_) return false;
  const Present before = *std::exchange(remembered_, std::nullopt);
  state_.ScaleFactor = before.scale_;
  state_.PatternSize = before.patternSize_;
  surface_.MoveTo(before.moved_);
  return true;
}

}  // namespace kestrel
