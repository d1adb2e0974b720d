// The main window's menu: what belongs to the look of the map, and what can be done at a place of it.

#include <QAction>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <cmath>

#include "core/Numbers.h"
#include "draw/Picture.h"
#include "forms/MapPointer.h"
#include "forms/PlotList.h"
#include "forms/TimeBar.h"
#include "forms/frmGetDistance.h"
#include "forms/frmPlot.h"
#include "map/MapProjection.h"
#include "map/StationTip.h"
#include "map/StatusWords.h"
#include "ui/Controls.h"
#include "ui/MapMover.h"
#include "ui/MapSurface.h"
#include "ui/StatusLine.h"
#include "ui/ViewMenu.h"

namespace kestrel {
namespace {

/// Whether home may stand there; elsewhere the program would make another place of it.
bool CanBeHome(const Position& place) {
  return std::abs(place.Latitude) <= 88 && place.Longitude >= 30 && place.Longitude <= 170;
}

/// To three decimals, as the states map has it.
float Cut(float degrees) {
  return static_cast<float>(std::trunc(double{degrees} * 1000) / 1000);
}

}  // namespace

void frmPlot::AddViewMenu() {
  menu_ = new ViewMenu(*this);
  menu_->Turned = [this](const QString& name) {
    if (name == "actTime") return TurnTime(menu_->IsOn("actTime"));
    if (name == "actList") return list_->SetOpen(menu_->IsOn("actList"));
    surface_->SetLook(menu_->Look());
  };
  menu_->AddCommand("actReset", "Reset &view", [this] { view_.Reset(); });
  menu_->addSeparator();
  menu_->AddCommand("actCopyMap", "&Copy the map", [this] { CopyMap(); });
  menu_->AddCommand("actSaveMap", "Save the &map...", [this] { SaveMap(); });
  surface_->SetLook(menu_->Look());
  timeBar_->Settled = [this] { Redraw(); };
  hour_.Turn(menu_->IsOn("actTime"));
  auto* mover = new MapMover(*surface_);
  mover->ZoomWanted = [this](double factor, Point place) {
    if (!scanning_) view_.Zoom(factor, place);
  };
  surface_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(surface_, &QWidget::customContextMenuRequested, menu_, [this](QPoint at) { ShowMenuAt(at); });
}

void frmPlot::ShowMenuAt(QPoint pixel) {
  const Point sheet = surface_->ToSheet(pixel);
  auto* menu = new QMenu(this);
  menu->setObjectName("mnuPlace");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [menu](const char* name, const QString& caption, bool enabled, auto run) {
    QAction* action = menu->addAction(caption, menu, run);
    action->setObjectName(name);
    action->setEnabled(enabled);
  };
  const StationMark* const mark = RecordToOpenAt(*surface_, sheet);
  if (mark && OpensLookup(*mark, workspace_.State))
    add("actLookUp", "&Look up " + Text(mark->CallSign), !scanning_,
        [this, call = Text(mark->CallSign)] { LookUp(call); });
  if (const auto place =
          MapProjection(workspace_.State.Home(), workspace_.State.ScaleFactor).PlaceAt(sheet)) {
    const QString words = Text(PlaceWords(*place));
    add("actCopyPlace", "C&opy " + words, true, [words] { QGuiApplication::clipboard()->setText(words); });
    add("actDistanceTo", "&Distance and bearing to here", !scanning_ && place->Longitude > 0,
        [this, place = *place] { ShowDistanceTo(place); });
    add("actMakeHome", "Ma&ke this home", !scanning_ && CanBeHome(*place),
        [this, place = *place] { MakeHome(place); });
  }
  add("actCentre", "C&entre here", true, [this, sheet] { view_.CentreOn(sheet); });
  menu->addSeparator();
  menu->addActions(menu_->actions());
  menu->popup(surface_->mapToGlobal(pixel));
}

void frmPlot::ShowDistanceTo(const Position& place) {
  frmGetDistance form(workspace_, this);
  form.ShowDistanceTo({Cut(place.Latitude), Cut(place.Longitude)});
  MeasureWith(form);
}

void frmPlot::MeasureWith(frmGetDistance& form) {
  const std::int16_t unit = workspace_.State.MapUnit();
  RunForm(form);
  if (workspace_.State.MapUnit() == unit) return;
  // Rings and scale bar are in the listener's unit. Where drawing anew would lose what lies on the map they
  // stay, true as they are, until it is drawn anew.
  if (scanned_ || added_)
    TellOfMap();
  else
    Redraw();
}

void frmPlot::MakeHome(const Position& place) {
  SessionState& state = workspace_.State;
  state.HomeName.clear();
  state.HomeLatitude = Cut(place.Latitude);
  state.HomeLongitude = Cut(place.Longitude);
  surface_->MoveTo({});
  Redraw();
}

void frmPlot::CopyMap() {
  const QSize pixels = surface_->size() * surface_->devicePixelRatio();
  QGuiApplication::clipboard()->setImage(
      RenderImage(surface_->Drawing(), pixels, surface_->Look(), surface_->Moved()));
  status_->SetPassing("The map was copied as a picture");
}

void frmPlot::SaveMap() {
  const ShownMap map = PresentMap();
  QString path = workspace_.System.ChooseFileToWrite(
      this, "Save the map as PNG, SVG or PDF",
      PdfFileName(MapPage(workspace_.State, workspace_.Folder, map).Name).chopped(4) + ".png");
  if (path.isEmpty()) return;
  if (QFileInfo(path).suffix().isEmpty()) path += ".png";
  const QSize pixels = surface_->size() * surface_->devicePixelRatio();
  const Result<Done> written = WritePicture(map.Drawing, pixels, path, map.Look, map.Moved);
  if (written)
    status_->SetPassing("The map was saved as " + path);
  else
    workspace_.System.ShowMessage(this, Text(written.error().Message()));
}

}  // namespace kestrel
