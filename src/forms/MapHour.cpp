#include "forms/MapHour.h"

#include "ui/MapSurface.h"

namespace kestrel {

MapHour::MapHour(const Workspace& workspace, MapSurface& surface, TimeBar& bar)
    : workspace_(workspace), surface_(surface), bar_(bar) {
  bar_.hide();
  bar_.Changed = [this] {
    Draw();
    if (Moved) Moved();
  };
}

void MapHour::Turn(bool on) {
  if (on) bar_.FollowClock();
  bar_.setVisible(on);
}

std::vector<std::string> MapHour::Redraw(MapGround ground) {
  std::vector<std::string> notes = map_.Read(workspace_.Folder, workspace_.State, ground);
  bar_.ShowHome(workspace_.State.Home());
  Draw();
  return notes;
}

void MapHour::Draw() {
  if (!IsOn()) return;
  surface_.Drawing().Clear();
  map_.Draw(surface_.Drawing(), bar_.At(), Rule);
  surface_.ShowDrawing();
}

}  // namespace kestrel
