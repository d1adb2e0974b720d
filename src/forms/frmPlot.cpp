#include "forms/frmPlot.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <algorithm>

#include "core/ChannelChoice.h"
#include "data/StationFile.h"
#include "forms/CommandIcons.h"
#include "forms/frmGetFrequency.h"
#include "forms/frmShowStations.h"
#include "map/BandScan.h"
#include "map/Compass.h"
#include "map/Outlines.h"
#include "map/View.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

const QString kPlaceSetting = "frmPlot/place";

/// A column of the commands that scrolls where the window is too low for it.
QScrollArea* ScrollableColumn(QWidget* column) {
  auto* area = new QScrollArea;
  area->setWidget(column);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFocusPolicy(Qt::NoFocus);
  return area;
}

QString FrequencyText(float channel) {
  return QString::number(static_cast<int>(channel)) + " kHz";
}

}  // namespace

frmPlot::frmPlot(const Workspace& workspace) : workspace_(workspace) {
  setObjectName("frmPlot");
  setWindowTitle("KestrelII - Plot");

  surface_ = new MapSurface(this);
  surface_->setObjectName("Map");
  surface_->WheelTurned = [this](int steps) {
    for (int i = 0; i < std::abs(steps) && !scanning_; ++i) steps > 0 ? ZoomInStep() : ZoomOutStep();
  };

  auto* column = new QWidget;
  commands_ = new QGridLayout(column);
  commands_->setSpacing(3);
  progress_ = new QProgressBar;
  progress_->setObjectName("prgChannel");
  progress_->setRange(static_cast<int>(LowestChannel), static_cast<int>(HighestChannel));
  AddCommands();
  commands_->setRowStretch(commands_->rowCount(), 1);
  QScrollArea* scrolling = ScrollableColumn(column);
  scrolling->setFixedWidth(column->sizeHint().width() + scrolling->verticalScrollBar()->sizeHint().width());

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(surface_, 1);
  layout->addWidget(scrolling);

  savedNotice_ = new QLabel("Session data has been saved", surface_);
  savedNotice_->setObjectName("Label1");
  savedNotice_->setAlignment(Qt::AlignCenter);
  savedNotice_->setStyleSheet("background: #eeffff; color: #0000ff; font-weight: bold");
  savedNotice_->hide();

  setTabOrder(findChild<QPushButton*>("cmdFreq"), findChild<QPushButton*>("cmdData"));
  ShowScanControls(false);
  RestorePlace();
  Redraw();
}

QPushButton* frmPlot::AddCommand(const char* name, const QString& caption, const QString& tip,
                                 const QList<QKeySequence>& shortcuts, void (frmPlot::*action)()) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  QStringList keys;
  for (const QKeySequence& keySequence : shortcuts) {
    auto* shortcut = new QShortcut(keySequence, this);
    connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    keys += keySequence.toString(QKeySequence::NativeText);
  }
  button->setToolTip(keys.isEmpty() ? tip : tip + " (" + keys.front() + ')');
  if (action) connect(button, &QPushButton::clicked, this, action);
  button->setEnabled(action != nullptr);
  commands_->addWidget(button, commands_->rowCount(), 0);
  return button;
}

void frmPlot::AddCommands() {
  const QColor ink = palette().color(QPalette::ButtonText);
  AddCommand("cmdFreq", "&Frequency", "Chooses the channel", {Qt::Key_F}, &frmPlot::ChooseFrequency);
  AddCommand("cmdData", "Station da&ta", "Looks a station up: its data and its pattern", {Qt::Key_S},
             nullptr);
  AddCommand("cmdHome", "&Home", "Chooses the home around which the map is drawn", {Qt::Key_M}, nullptr);
  AddCommand("cmdAll", "&All", "Shows where the stations of all channels are", {Qt::Key_A},
             &frmPlot::ChooseScan);
  AddCommand("cmdHours", "Hour&s", "Shows all patterns, those of the day, those of the night", {Qt::Key_H},
             &frmPlot::NextHoursFilter);
  AddCommand("cmdHets", "H&ets", "Lists the beat notes on the channel", {Qt::Key_B}, nullptr);
  AddCommand("cmdCompass", "&Compass", "Lays bearings from home over the map", {Qt::Key_C},
             &frmPlot::ToggleCompass);
  AddCommand("cmdDistance", "&Distance", "Distance and bearing from home to a place", {Qt::Key_D}, nullptr);
  AddCommand("cmdOptions", "&Options", "Colours, map language, aspect", {Qt::Key_O}, nullptr);
  AddCommand("cmdIn", "&In", "Zooms in", {Qt::Key_Plus, Qt::Key_Equal}, &frmPlot::ZoomInStep)
      ->setIcon(ZoomIcon(true, ink));
  AddCommand("cmdOut", "O&ut", "Zooms out", {Qt::Key_Minus}, &frmPlot::ZoomOutStep)
      ->setIcon(ZoomIcon(false, ink));
  AddCommand("cmdLarger", "&Larger", "Draws the patterns larger", {Qt::SHIFT | Qt::Key_Up}, &frmPlot::Larger)
      ->setIcon(PatternIcon(true, ink));
  AddCommand("cmdSmaller", "Smalle&r", "Draws the patterns smaller", {Qt::SHIFT | Qt::Key_Down},
             &frmPlot::Smaller)
      ->setIcon(PatternIcon(false, ink));
  AddCommand("cmdPrint", "&Print", "Prints the map", {QKeySequence::Print}, nullptr);
  AddCommand("cmdAbout", "A&bout", "Version, licence, where the data come from", {Qt::Key_F1}, nullptr);
  AddCommand("cmdExit", "E&xit", "Saves the session and ends the program", {Qt::CTRL | Qt::Key_Q},
             &frmPlot::Exit);
  AddCommand("cmdStop", "&Stop", "Ends the plot of all stations before its next channel", {Qt::Key_Escape},
             &frmPlot::StopScan);
  commands_->addWidget(progress_, commands_->rowCount(), 0);

  connect(new QShortcut(Qt::Key_PageUp, this), &QShortcut::activated, this, [this] {
    if (!scanning_) ChannelUp();
  });
  connect(new QShortcut(Qt::Key_PageDown, this), &QShortcut::activated, this, [this] {
    if (!scanning_) ChannelDown();
  });
}

void frmPlot::Redraw(MapGround ground) {
  if (ground == MapGround::Empty) surface_->Drawing().Clear();
  DrawMainMap(surface_->Drawing(), workspace_.Folder, workspace_.State, ground);
  ground == MapGround::Empty ? surface_->ShowDrawing() : surface_->ShowAdditions();
  UpdateCommands();
}

void frmPlot::UpdateCommands() {
  findChild<QPushButton*>("cmdIn")->setEnabled(!scanning_ && CanZoomIn(workspace_.State));
  findChild<QPushButton*>("cmdOut")->setEnabled(!scanning_ && CanZoomOut(workspace_.State));
}

void frmPlot::ChooseFrequency() {
  frmGetFrequency form(workspace_, this);
  form.exec();
  if (form.Choice() == frmGetFrequency::Plot::Nothing) return;
  workspace_.State.SelectedFrequency = workspace_.State.CurrentFrequency;
  Redraw(form.Choice() == frmGetFrequency::Plot::OnTop ? MapGround::AsDrawn : MapGround::Empty);
}

void frmPlot::ChannelUp() {
  if (const auto message = StepUp(workspace_.State))
    workspace_.System.ShowMessage(this, QString::fromStdString(*message));
  workspace_.State.SelectedFrequency = workspace_.State.CurrentFrequency;
  Redraw();
}

void frmPlot::ChannelDown() {
  if (const auto message = StepDown(workspace_.State))
    workspace_.System.ShowMessage(this, QString::fromStdString(*message));
  workspace_.State.SelectedFrequency = workspace_.State.CurrentFrequency;
  Redraw();
}

void frmPlot::NextHoursFilter() {
  std::int16_t& filter = workspace_.State.HoursFilter;
  filter = static_cast<std::int16_t>(filter >= 2 ? 0 : filter + 1);
  Redraw();
}

void frmPlot::ToggleCompass() {
  SessionState& state = workspace_.State;
  state.CompassShown = state.CompassShown == 1 ? std::int16_t{0} : std::int16_t{1};
  if (state.CompassShown == 0) return Redraw();
  DrawCompass(surface_->Drawing(), state.AspectRatio);
  surface_->ShowAdditions();
}

void frmPlot::ChangeView(void (*change)(SessionState&)) {
  change(workspace_.State);
  Redraw();
}

void frmPlot::ZoomInStep() {
  ChangeView(ZoomIn);
}
void frmPlot::ZoomOutStep() {
  ChangeView(ZoomOut);
}
void frmPlot::Larger() {
  ChangeView(EnlargePatterns);
}
void frmPlot::Smaller() {
  ChangeView(ShrinkPatterns);
}

void frmPlot::ChooseScan() {
  frmShowStations(workspace_, this).exec();
  if (workspace_.State.PlotAllStations != 1) return;
  if (scanning_) {
    // The scan that runs ends before its next channel, then the new one begins.
    scanAgain_ = true;
    StopScan();
  } else {
    Scan();
  }
}

void frmPlot::StopScan() {
  workspace_.State.StopRequested = true;
}

void frmPlot::Scan() {
  SessionState& state = workspace_.State;
  do {
    scanAgain_ = false;
    state.StopRequested = false;
    ShowScanControls(true);
    surface_->Drawing().Clear();
    const MapProjection projection(state.HomeLatitude, state.HomeLongitude, state.ScaleFactor);
    DrawOutlineFiles(surface_->Drawing(), workspace_.Folder, projection);
    surface_->ShowDrawing();
    for (float channel = LowestChannel; channel <= HighestChannel && !state.StopRequested;
         channel += ChannelStep) {
      progress_->setValue(static_cast<int>(channel));
      progress_->setFormat(FrequencyText(channel));
      static_cast<void>(DrawScannedChannel(surface_->Drawing(), workspace_.Folder, projection, channel));
      surface_->ShowAdditions();
      workspace_.System.ProcessEvents();
    }
    state.StopRequested = true;
    ShowScanControls(false);
  } while (scanAgain_ && !closeAsked_);
  workspace_.System.Beep();
  if (closeAsked_) close();
}

void frmPlot::ShowScanControls(bool running) {
  scanning_ = running;
  for (QPushButton* button : findChildren<QPushButton*>()) {
    const QString name = button->objectName();
    const bool staysOn = name == "cmdStop" || name == "cmdAll" || name == "cmdExit";
    if (running) {
      button->setProperty("enabledBefore", button->isEnabled());
      if (!staysOn) button->setEnabled(false);
    } else if (const QVariant before = button->property("enabledBefore"); before.isValid()) {
      button->setEnabled(before.toBool());
    }
  }
  findChild<QPushButton*>("cmdStop")->setVisible(running);
  findChild<QPushButton*>("cmdStop")->setEnabled(running);
  progress_->setVisible(running);
  UpdateCommands();
}

void frmPlot::Exit() {
  close();
}

void frmPlot::closeEvent(QCloseEvent* event) {
  if (scanning_) {
    closeAsked_ = true;
    StopScan();
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
  const QRectF place(surface_->FromSheet({0, 3000}), surface_->FromSheet({SheetWidth, 3400}));
  savedNotice_->setGeometry(place.toAlignedRect());
  savedNotice_->show();
  savedNotice_->repaint();
  workspace_.System.Pause(1);
  savedNotice_->hide();
}

void frmPlot::RestorePlace() {
  resize(screen()->availableSize() * 0.75);
  restoreGeometry(QSettings().value(kPlaceSetting).toByteArray());
}

}  // namespace kestrel
