#include "forms/frmPlot.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QVBoxLayout>
#include <algorithm>
#include <tuple>
#include <utility>

#include "data/StationFile.h"
#include "forms/MapPointer.h"
#include "forms/PlotList.h"
#include "forms/frmAspect.h"
#include "forms/frmGetFrequency.h"
#include "forms/frmGetHome.h"
#include "forms/frmGetStationData.h"
#include "forms/frmImport.h"
#include "forms/frmOptions.h"
#include "forms/frmShowStations.h"
#include "map/BandScan.h"
#include "map/Compass.h"
#include "map/MapWords.h"
#include "map/PrintedPages.h"
#include "map/Rings.h"
#include "map/StationTip.h"
#include "map/StatusWords.h"
#include "map/View.h"
#include "ui/CommandColumn.h"
#include "ui/Controls.h"
#include "ui/MapSurface.h"
#include "ui/PrintCommands.h"
#include "ui/StatusLine.h"
#include "ui/ViewMenu.h"

namespace kestrel {
namespace {

const QString kPlaceSetting = "frmPlot/place";

/// What the map is drawn from of the places and colours that windows change.
auto DrawnSettings(const SessionState& state) {
  return std::tuple(state.MapUnit(), state.HomeName, state.HomeLatitude, state.HomeLongitude, state.DayColor,
                    state.NightColor, state.UnlimitedColor, state.CriticalColor, state.AdjacentColor);
}

}  // namespace

frmPlot::frmPlot(const Workspace& workspace)
    : workspace_(workspace),
      surface_(new MapSurface(this)),
      view_(workspace.State, *surface_),
      timeBar_(new TimeBar(Now, this)),
      hour_(workspace, *surface_, *timeBar_) {
  setObjectName("frmPlot");
  setWindowTitle("KestrelII - Plot");

  surface_->setObjectName("Map");
  surface_->setAccessibleName("Map");
  surface_->Words = [this] { return Words(); };
  view_.Redraw = [this] { Redraw(); };
  status_ = new StatusLine(this);
  status_->setObjectName("lblMap");
  surface_->MouseMoved = [this](Point place) {
    status_->SetPassing(Text(MouseWords(workspace_.State, place)));
  };
  surface_->MouseLeft = [this] { status_->SetPassing({}); };
  surface_->Resized = [this] { TellOfMap(); };
  surface_->TipWanted = [this](Point place) { return TipAt(place); };
  surface_->Clicked = [this](Point place) {
    if (!scanning_) ClickAt(place);
  };

  AddViewMenu();
  auto* column = new CommandColumn(this);
  AddCommands(*column);
  column->Finish();
  AddList(*column);
  leftOut_ = new QLabel(this);
  leftOut_->setObjectName("LeftOut");
  leftOut_->setTextFormat(Qt::PlainText);
  leftOut_->setMargin(3);
  leftOut_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);  // a long line does not widen the window

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  auto* map = new QVBoxLayout;
  map->setSpacing(0);
  map->addWidget(&list_->Area(), 1);
  map->addWidget(leftOut_);
  map->addWidget(timeBar_);
  map->addWidget(status_);
  layout->addLayout(map, 1);
  layout->addWidget(column);

  savedNotice_ = new QLabel("Session data has been saved", surface_);
  savedNotice_->setObjectName("Label1");
  savedNotice_->setAlignment(Qt::AlignCenter);
  savedNotice_->setStyleSheet("background: #eeffff; color: #0000ff; font-weight: bold");
  savedNotice_->hide();

  ShowScanControls(false);
  resize(screen()->availableSize() * 0.75);
  restoreGeometry(QSettings().value(kPlaceSetting).toByteArray());
  Redraw();
}

QPushButton* frmPlot::Button(const char* name) const {
  return findChild<QPushButton*>(name);
}

void frmPlot::Redraw(MapGround ground) {
  if (ground == MapGround::Empty) {
    surface_->Drawing().Clear();
    scanned_ = false;
  }
  added_ = ground == MapGround::AsDrawn;
  SayLeftOut(DrawOn(ground));
  list_->MapDrawn(ground);
  UpdateCommands();
  TellOfMap();
}

std::vector<std::string> frmPlot::DrawOn(MapGround ground) {
  if (hour_.IsOn()) return hour_.Redraw(ground);
  std::vector<std::string> notes =
      DrawMainMap(surface_->Drawing(), workspace_.Folder, workspace_.State, ground);
  ground == MapGround::Empty ? surface_->ShowDrawing() : surface_->ShowAdditions();
  return notes;
}

void frmPlot::TellOfMap() {
  const SessionState& state = workspace_.State;
  const float width = surface_->TwipsPerPixel() * static_cast<float>(surface_->width());
  QStringList words = {Text(ChannelsOn(PresentMap(), state)),
                       Text(ShownWords(state, StationCount(surface_->Drawing().Stations()), width)),
                       Text(workspace_.Folder.StationsLine())};
  words.removeAll({});
  status_->SetRest(words.join("    "));
}

QString frmPlot::Words() const {
  const double twipsAcross = double{surface_->TwipsPerPixel()} * surface_->width();
  const std::optional<Moment> moment = hour_.IsOn() ? std::optional(timeBar_->At()) : std::nullopt;
  return Text(MapWords(workspace_.State, surface_->Drawing().Stations(),
                       twipsAcross * 75 / workspace_.State.ScaleFactor, moment));
}

void frmPlot::SayLeftOut(const std::vector<std::string>& notes) {
  leftOut_->setText(Text(NotesLine(notes)));
  const QString lines = leftOut_->text().replace("; ", "\n").toHtmlEscaped();
  leftOut_->setToolTip("<p style='white-space:pre'>" + lines + "</p>");
  leftOut_->setVisible(!notes.empty());
}

void frmPlot::UpdateCommands() {
  Button("cmdIn")->setEnabled(!scanning_ && CanZoomIn(workspace_.State));
  Button("cmdOut")->setEnabled(!scanning_ && CanZoomOut(workspace_.State));
  // At a moment each station shows the hours that it has then.
  Button("cmdHours")->setEnabled(!scanning_ && !hour_.IsOn());
  timeBar_->setEnabled(!scanning_);
}

void frmPlot::RunForm(QDialog& form) {
  form.exec();
  // A message or a map that closes together with the form below it leaves some window managers without an
  // active window.
  activateWindow();
}

void frmPlot::ChooseFrequency() {
  frmGetFrequency form(workspace_, this);
  RunForm(form);
  if (form.Choice() == frmGetFrequency::Plot::Nothing) return;
  const bool otherScale = view_.GoBack();
  workspace_.State.SelectedFrequency = workspace_.State.CurrentFrequency;
  Redraw(form.Choice() == frmGetFrequency::Plot::OnTop && !otherScale ? MapGround::AsDrawn
                                                                      : MapGround::Empty);
}

void frmPlot::StepChannel(std::optional<std::string> (*step)(SessionState&)) {
  if (scanning_) return;
  if (const auto message = step(workspace_.State)) workspace_.System.ShowMessage(this, Text(*message));
  workspace_.State.SelectedFrequency = workspace_.State.CurrentFrequency;
  view_.GoBack();
  Redraw();
}

void frmPlot::GoToChannel(float frequency) {
  workspace_.State.CurrentFrequency = frequency;
  workspace_.State.SelectedFrequency = frequency;
  workspace_.State.AdjacentsShown = 0;
  view_.GoBack();
  Redraw();
}

void frmPlot::LookUp(const QString& callSign) {
  frmGetStationData form(workspace_, this, callSign);
  std::optional<QString> wanted;
  form.BandAsked = [&wanted](const QString& call) { wanted = call; };
  RunForm(form);
  if (wanted && !scanning_) list_->FindInBand(*wanted);
}

void frmPlot::ChooseHome() {
  const auto before = DrawnSettings(workspace_.State);
  const Position home = workspace_.State.Home();
  RunForm(frmGetHome(workspace_, this));
  if (workspace_.State.Home() != home) surface_->MoveTo({});
  if (DrawnSettings(workspace_.State) != before) Redraw();
}

void frmPlot::ChooseOptions() {
  const auto before = DrawnSettings(workspace_.State);
  frmOptions form(workspace_, this);
  bool aspectAsked = false;
  form.OpenAspect = [&aspectAsked] { aspectAsked = true; };
  RunForm(form);
  if (DrawnSettings(workspace_.State) != before) Redraw();
  if (aspectAsked) AdjustAspect();
}

void frmPlot::ImportStations() {
  frmImport form(workspace_, this);
  RunForm(form);
  if (!form.DataChanged()) return;
  // The lists are those of the opening screen; a list that cannot be read leaves the map as it is.
  if (!LoadPlaceLists(workspace_.Folder, workspace_.State))
    workspace_.System.ShowMessage(this, "We have had a data-file reading error");
  Redraw();
}

void frmPlot::AdjustAspect() {
  if (aspect_) return aspect_->activateWindow();
  aspect_ = new frmAspect(workspace_, this);
  aspect_->setAttribute(Qt::WA_DeleteOnClose);
  aspect_->RedrawAll = [this] {
    if (!scanning_) Redraw();
  };
  aspect_->RedrawChannel = [this] {
    if (scanning_) return;
    const std::int16_t adjacents = std::exchange(workspace_.State.AdjacentsShown, std::int16_t{0});
    Redraw();
    workspace_.State.AdjacentsShown = adjacents;
  };
  aspect_->show();
}

void frmPlot::TurnTime(bool on) {
  hour_.Turn(on);
  Redraw();
}

void frmPlot::NextHoursFilter() {
  workspace_.State.HoursFilter = Next(workspace_.State.HoursFilter);
  Redraw();
}

void frmPlot::ToggleCompass() {
  SessionState& state = workspace_.State;
  state.CompassShown = state.CompassShown == 1 ? std::int16_t{0} : std::int16_t{1};
  if (state.CompassShown == 0 || hour_.IsOn()) return Redraw();
  DrawCompass(surface_->Drawing(), state.AspectRatio);
  surface_->ShowAdditions();
}

ShownMap frmPlot::PresentMap() const {
  const Point corner = surface_->ToSheet({0, 0});
  const Point opposite = surface_->ToSheet(QPointF(surface_->width(), surface_->height()));
  const SheetArea shown = {corner.x, corner.y, opposite.x - corner.x, opposite.y - corner.y};
  return {surface_->Drawing(), shown, scanned_, surface_->Look(), surface_->Moved()};
}

void frmPlot::Print() {
  PrintMap(workspace_.System, workspace_.Folder, workspace_.State, PresentMap(), this);
}

void frmPlot::ChooseScan() {
  const MapView::Present before(view_);
  frmShowStations form(workspace_, this);
  RunForm(form);
  if (form.Choice() == frmShowStations::Plot::Nothing) return;
  view_.RememberIfChanged(before);
  if (!scanning_) return Scan();
  // The scan that runs ends before its next channel, then the new one begins.
  scanAgain_ = true;
  workspace_.State.StopRequested = true;
}

void frmPlot::Scan() {
  ShowScanControls(true);
  do {
    scanAgain_ = false;
    ScanOnce();
  } while (scanAgain_ && !closeAsked_);
  ShowScanControls(false);
  workspace_.System.Beep();
  if (closeAsked_) close();
}

void frmPlot::ScanOnce() {
  SessionState& state = workspace_.State;
  state.StopRequested = false;
  surface_->Drawing().Clear();
  scanned_ = true;
  const MapProjection projection(state.Home(), state.ScaleFactor);
  status_->SetRest("All stations are being drawn");
  std::vector<std::string> notes = DrawMapGround(surface_->Drawing(), workspace_.Folder, state);
  surface_->ShowDrawing();
  for (BandScan scan(workspace_.Folder, projection); !scan.AtEnd() && !state.StopRequested;) {
    const int channel = static_cast<int>(scan.Channel());
    progress_->setValue(channel);
    progress_->setFormat(QString::number(channel) + " kHz");
    const Result<Done> drawn = scan.DrawNext(surface_->Drawing());
    // A channel without a file has no stations.
    if (!drawn && drawn.error().kind != Error::Kind::NotFound) notes.push_back(drawn.error().Message());
    surface_->ShowAdditions();
    workspace_.System.ProcessEvents();
  }
  state.StopRequested = true;
  DrawScaleBar(surface_->Drawing(), state);
  // The labels that came channel by channel are placed once more, each with regard to all.
  surface_->ShowDrawing();
  SayLeftOut(notes);
  TellOfMap();
}

void frmPlot::ShowScanControls(bool running) {
  scanning_ = running;
  for (QPushButton* button : findChildren<QPushButton*>()) {
    const QString name = button->objectName();
    if (list_->Panel().isAncestorOf(button)) continue;
    button->setEnabled(!running || name == "cmdStop" || name == "cmdAll" || name == "cmdView" ||
                       name == "cmdExit");
  }
  for (const char* action : {"actReset", "actTime"}) menu_->findChild<QAction*>(action)->setEnabled(!running);
  list_->SetResting(running);
  Button("cmdStop")->setVisible(running);
  Button("cmdStop")->setEnabled(running);
  progress_->setVisible(running);
  UpdateCommands();
}

QString frmPlot::TipAt(Point place) const {
  const std::vector<StationMark> records = RecordsAt(*surface_, place);
  const QString tip = Text(StationsTip(workspace_.Folder, workspace_.State, records));
  return tip.isEmpty() ? tip : tip + list_->FieldLines(records);
}

void frmPlot::ClickAt(Point place) {
  const StationMark* mark = RecordToOpenAt(*surface_, place);
  if (!mark) return;
  if (list_->TakeClick(*mark)) return;
  if (OpensLookup(*mark, workspace_.State)) return LookUp(Text(mark->CallSign));
  surface_->ShowTip(QCursor::pos(), TipAt(place));
}

void frmPlot::closeEvent(QCloseEvent* event) {
  if (scanning_) {
    closeAsked_ = true;
    workspace_.State.StopRequested = true;
    event->ignore();
    return;
  }
  SaveSessionOnce();
  event->accept();
}

void frmPlot::SaveSessionOnce() {
  if (saved_) return;
  saved_ = true;
  QSettings().setValue(kPlaceSetting, saveGeometry());
  if (!SaveSession(workspace_.Folder, workspace_.State)) {
    workspace_.System.Beep();
    workspace_.System.ShowMessage(this, "The KestrelII last-session file was not written correctly.");
    return;
  }
  savedNotice_->setGeometry(
      QRectF(surface_->FromSheet({0, 3000}), surface_->FromSheet({SheetWidth, 3400})).toAlignedRect());
  savedNotice_->show();
  savedNotice_->repaint();
  workspace_.System.Pause(1);
  savedNotice_->hide();
}

}  // namespace kestrel
