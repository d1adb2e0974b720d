#include "forms/frmShowContext.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include "core/Distance.h"
#include "core/Text.h"
#include "ui/AddressNotice.h"
#include "ui/Controls.h"
#include "ui/Keys.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

constexpr double kOfScreen = 0.7;

}  // namespace

frmShowContext::frmShowContext(const Workspace& workspace, QWidget* parent, const StationSelection& selection)
    : Form(workspace, parent, "frmShowContext", "Context map"), selection_(selection) {
  map_ = new MapSurface(this, ContextMapArea);
  map_->setObjectName("Map");
  map_->setAccessibleName("Map around the station");
  cmdLess_ = MakeButton("cmdLess", "Zoom &out", "Shows twice as much of the map (-)",
                        [this] { Zoom(&ContextZoom::ZoomOut); });
  cmdMore_ = MakeButton("cmdMore", "Zoom &in", "Shows the map twice as large (+)",
                        [this] { Zoom(&ContextZoom::ZoomIn); });
  QPushButton* web = MakeButton("cmdMap", "&Google map", "Opens the place in your browser", [this] {
    notice_->Open(workspace_.System, Text(WebMapAddress(selection_, workspace_.State.MapLanguage)));
  });
  QPushButton* close =
      MakeButton("cmdClose", "&Close", "Back to the station's data (Escape)", [this] { accept(); });
  AddShortcuts(*this, "cmdLess", [this] { cmdLess_->click(); });
  AddShortcuts(*this, "cmdMore", [this] { cmdMore_->click(); });
  map_->WheelTurned = [this](int steps) { (steps > 0 ? cmdMore_ : cmdLess_)->click(); };

  lblPlace_ = MakeLabel("lblPlace", {});
  map_->MouseMoved = [this](Point at) { ShowPlace(PlaceOnContextMap(View(), at)); };

  auto* column = new QVBoxLayout;
  for (QPushButton* button : {cmdLess_, cmdMore_, web, close}) column->addWidget(button);
  column->addStretch();
  notice_ = new AddressNotice;
  auto* layout = new QGridLayout(this);
  layout->addWidget(map_, 0, 0);
  layout->addLayout(column, 0, 1);
  layout->addWidget(lblPlace_, 1, 0);
  layout->addWidget(notice_, 2, 0, 1, 2);
  layout->setColumnStretch(0, 1);
  layout->setRowStretch(0, 1);
  resize(screen()->availableSize() * kOfScreen);
  cmdMore_->setFocus();
  Draw();
}

ContextView frmShowContext::View() const {
  const SessionState& state = workspace_.State;
  return {{selection_.Latitude, selection_.Longitude}, state.Home(), state.MapUnit(), zoom_.Scale};
}

void frmShowContext::ShowPlace(std::optional<Position> place) {
  if (!place) return lblPlace_->clear();
  const SessionState& state = workspace_.State;
  const DistanceReadout fromHome = MeasureDistance(state.Home(), *place, state.MapUnit());
  lblPlace_->setText(Text(PlaceText(*place) + "; from home " + std::string(Trim(fromHome.DistanceText)) +
                          ", " + fromHome.BearingText));
}

void frmShowContext::Zoom(void (ContextZoom::*step)()) {
  (zoom_.*step)();
  const QWidget* focus = focusWidget();
  cmdLess_->setEnabled(zoom_.MayZoomOut);
  cmdMore_->setEnabled(zoom_.MayZoomIn);
  // The next key of a series must not press what stands after the button that has just gone.
  if (focus == cmdLess_ && !cmdLess_->isEnabled()) cmdMore_->setFocus();
  if (focus == cmdMore_ && !cmdMore_->isEnabled()) cmdLess_->setFocus();
  Draw();
}

void frmShowContext::Draw() {
  map_->Drawing().Clear();
  const ContextView view = View();
  DrawContextMap(map_->Drawing(), workspace_.Folder, view);
  map_->setAccessibleDescription(Text(ContextMapWords(view)));
  map_->ShowDrawing();
}

}  // namespace kestrel
