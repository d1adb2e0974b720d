// The commands of the main window: names, captions, and what each calls.

#include <QProgressBar>
#include <QPushButton>

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
#include "ui/Keys.h"
#include "ui/ViewMenu.h"

namespace kestrel {

void frmPlot::AddCommands(CommandColumn& column) {
  SessionState& state = workspace_.State;
  column.AddCommand("cmdFreq", "&Frequency", [this] { ChooseFrequency(); });
  column.AddCommand("cmdData", "Station da&ta", [this] { LookUp({}); });
  column.AddCommand("cmdHome", "&Home", [this] { ChooseHome(); });
  column.AddCommand("cmdAll", "&All", [this] { ChooseScan(); });
  AddViewCommands(column);
  column.AddCommand("cmdHets", "H&ets", [this] { RunForm(frmShowHets(workspace_, this)); });
  column.AddCommand("cmdDistance", "&Distance", [this] {
    frmGetDistance form(workspace_, this);
    MeasureWith(form);
  });
  column.AddCommand("cmdOptions", "&Options", [this] { ChooseOptions(); });
  column.AddCommand("cmdPrint", "&Print", [this] { Print(); });
  column.AddCommand("cmdImport", "I&mport", [this] { ImportStations(); });
  column.AddCommand("cmdAbout", "A&bout", [this] { RunForm(frmAbout(workspace_, this)); });
  column.AddGap();
  column.AddCommand("cmdExit", "E&xit", [this] { close(); });
  column.AddCommand("cmdStop", "&Stop", [&state] { state.StopRequested = true; });
  progress_ = new QProgressBar;
  progress_->setObjectName("prgChannel");
  progress_->setRange(static_cast<int>(LowestChannel), static_cast<int>(HighestChannel));
  column.AddWidget(progress_);

  AddShortcuts(*this, "channelUp", [this] { StepChannel(StepUp); });
  AddShortcuts(*this, "channelDown", [this] { StepChannel(StepDown); });
}

void frmPlot::AddViewCommands(CommandColumn& column) {
  const QColor ink = palette().color(QPalette::ButtonText);
  const auto zoom = [this](double factor) { return [this, factor] { view_.Zoom(factor); }; };
  const auto patterns = [this](void (*change)(SessionState&)) {
    return [this, change] { view_.Change(change); };
  };
  column.AddGap();
  column.AddCommand("cmdView", "&View", [this] {
    const QWidget* button = Button("cmdView");
    menu_->popup(button->mapToGlobal(QPoint(0, button->height())));
  });
  column.AddCommand("cmdHours", "Hour&s", [this] { NextHoursFilter(); });
  column.AddCommand("cmdCompass", "&Compass", [this] { ToggleCompass(); });
  column.AddCommand("cmdIn", "&In", zoom(ZoomStep))->setIcon(ZoomIcon(true, ink));
  column.AddCommand("cmdOut", "O&ut", zoom(1 / ZoomStep))->setIcon(ZoomIcon(false, ink));
  column.AddCommand("cmdLarger", "&Larger", patterns(EnlargePatterns))->setIcon(PatternIcon(true, ink));
  column.AddCommand("cmdSmaller", "Smalle&r", patterns(ShrinkPatterns))->setIcon(PatternIcon(false, ink));
  column.AddGap();
}

}  // namespace kestrel
