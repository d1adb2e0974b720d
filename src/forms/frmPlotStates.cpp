#include "forms/frmPlotStates.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "map/StatesMap.h"
#include "ui/Controls.h"
#include "ui/MapSurface.h"

namespace kestrel {

frmPlotStates::frmPlotStates(const Workspace& workspace, QWidget* parent)
    : Form(workspace, parent, "frmPlotStates", "States") {
  // On the lowest screens the names of the longitudes must not grow into each other.
  constexpr double kScreenPerXHeight = 56;
  map_ = new MapSurface(this, StatesMapArea,
                        std::min(7.0, screen()->availableSize().height() / kScreenPerXHeight));
  map_->setObjectName("Map");
  map_->setAccessibleName("Map of the states");
  map_->setAccessibleDescription(
      "A click makes the place home; the boxes of the home window take it in numbers");
  map_->setCursor(Qt::CrossCursor);
  map_->setToolTip("A click makes this place your home");
  map_->MouseMoved = [this](Point at) { ShowReadout(at); };
  map_->MousePressed = [this](Point at, Qt::MouseButton button) { TakePoint(at, button); };
  DrawStatesMap(map_->Drawing(), workspace_.Folder, workspace_.State.Home());

  // Its texts stand side by side and must not grow into each other: the size that can just be read is in
  // pixels of the screen itself.
  constexpr double kSmallestXHeight = 4.1;
  readout_ = new MapSurface(this, StatesReadoutArea, kSmallestXHeight / devicePixelRatio());
  readout_->setObjectName("Readout");
  readout_->setAccessibleName("Mouse and home");
  readout_->setAccessibleDescription("Home is at " + Text(PlaceText(workspace_.State.Home())));

  auto* strip = new QHBoxLayout;
  strip->setContentsMargins(0, 0, 6, 3);
  strip->addWidget(readout_, 1);
  strip->addWidget(
      MakeButton("cmdExit", "&Return", "Back to the home window without a change", [this] { reject(); }));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(map_, 1);
  layout->addLayout(strip);
  const QSize available = screen()->availableSize();
  constexpr QSize kReadable(800, 0);
  resize((available * 0.85).expandedTo(available.boundedTo(kReadable)));
  ShowReadout(std::nullopt);
}

void frmPlotStates::resizeEvent(QResizeEvent* event) {
  constexpr double kHeightShare = StatesReadoutArea.Height / StatesReadoutArea.Width;
  readout_->setFixedHeight(qRound(width() * kHeightShare));
  Form::resizeEvent(event);
}

void frmPlotStates::ShowReadout(std::optional<Point> mouse) {
  readout_->Drawing().Clear();
  DrawStatesReadout(readout_->Drawing(), mouse, workspace_.State);
  readout_->ShowDrawing();
}

void frmPlotStates::TakePoint(Point at, Qt::MouseButton button) {
  if (button != Qt::LeftButton && button != Qt::RightButton) return;
  const Position clicked = ClickedPosition(at);
  workspace_.State.HomeLatitude = clicked.Latitude;
  workspace_.State.HomeLongitude = clicked.Longitude;
  accept();
}

}  // namespace kestrel
