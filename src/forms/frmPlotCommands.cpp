// The commands of the main window: names, captions, keys, and what each calls.

#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>

#include "core/Band.h"
#include "core/ChannelChoice.h"
#include "data/StationFile.h"
#include "forms/CommandIcons.h"
#include "forms/frmAbout.h"
#include "forms/frmGetDistance.h"
#include "forms/frmPlot.h"
#include "forms/frmShowHets.h"
#include "map/View.h"
#include "ui/CommandColumn.h"

namespace kestrel {

void frmPlot::AddCommands(CommandColumn& column) {
  SessionState& state = workspace_.State;
  column.AddCommand("cmdFreq", "&Frequency", "Chooses the channel", {Qt::Key_F},
                    [this] { ChooseFrequency(); });
  column.AddCommand("cmdData", "Station da&ta", "Looks a station up: its data and its pattern", {Qt::Key_S},
                    [this] { LookUp({}); });
  column.AddCommand("cmdHome", "&Home", "Chooses the home around which the map is drawn", {Qt::Key_M},
                    [this] { ChooseHome(); });
  column.AddCommand("cmdAll", "&All", "Shows where the stations of all channels are", {Qt::Key_A},
                    [this] { ChooseScan(); });
  AddViewCommands(column);
  column.AddCommand("cmdHets", "H&ets", "Lists the beat notes on the channel", {Qt::Key_B},
                    [this] { RunForm(frmShowHets(workspace_, this)); });
  column.AddCommand("cmdDistance", "&Distance", "Distance and bearing from home to a place", {Qt::Key_D},
                    [this] { RunForm(frmGetDistance(workspace_, this)); });
  column.AddCommand("cmdOptions", "&Options", "Colours, map language, aspect", {Qt::Key_O},
                    [this] { ChooseOptions(); });
  column.AddCommand("cmdPrint", "&Print", "Prints the map", {QKeySequence::Print}, [this] { Print(); });
  column.AddCommand("cmdImport", "I&mport", "Makes the station files from the FCC's files", {Qt::Key_I},
                    [this] { ImportStations(); });
  column.AddCommand("cmdAbout", "A&bout", "Version, licence, where the data come from", {Qt::Key_F1},
                    [this] { RunForm(frmAbout(workspace_, this)); });
  column.AddGap();
  column.AddCommand("cmdExit", "E&xit", "Saves the session and ends the program", {Qt::CTRL | Qt::Key_Q},
                    [this] { close(); });
  column.AddCommand("cmdStop", "&Stop", "Ends the plot of all stations before its next channel",
                    {Qt::Key_Escape}, [&state] { state.StopRequested = true; });
  progress_ = new QProgressBar;
  progress_->setObjectName("prgChannel");
  progress_->setRange(static_cast<int>(LowestChannel), static_cast<int>(HighestChannel));
  column.AddWidget(progress_);

  const auto addStep = [this](Qt::Key key, std::optional<std::string> (*step)(SessionState&)) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, step] { StepChannel(step); });
  };
  addStep(Qt::Key_PageUp, StepUp);
  addStep(Qt::Key_PageDown, StepDown);
}

void frmPlot::AddViewCommands(CommandColumn& column) {
  const QColor ink = palette().color(QPalette::ButtonText);
  const auto view = [this](void (*change)(SessionState&)) { return [this, change] { ChangeView(change); }; };
  column.AddGap();
  column.AddCommand("cmdHours", "Hour&s", "Shows all patterns, those of the day, those of the night",
                    {Qt::Key_H}, [this] { NextHoursFilter(); });
  column.AddCommand("cmdCompass", "&Compass", "Lays bearings from home over the map", {Qt::Key_C},
                    [this] { ToggleCompass(); });
  column.AddCommand("cmdIn", "&In", "Zooms in", {Qt::Key_Plus, Qt::Key_Equal}, view(ZoomIn))
      ->setIcon(ZoomIcon(true, ink));
  column.AddCommand("cmdOut", "O&ut", "Zooms out", {Qt::Key_Minus}, view(ZoomOut))
      ->setIcon(ZoomIcon(false, ink));
  column
      .AddCommand("cmdLarger", "&Larger", "Draws the patterns larger", {Qt::SHIFT | Qt::Key_Up},
                  view(EnlargePatterns))
      ->setIcon(PatternIcon(true, ink));
  column
      .AddCommand("cmdSmaller", "Smalle&r", "Draws the patterns smaller", {Qt::SHIFT | Qt::Key_Down},
                  view(ShrinkPatterns))
      ->setIcon(PatternIcon(false, ink));
  column.AddGap();
}

}  // namespace kestrel
