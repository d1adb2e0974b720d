// The commands of the main window: names, captions, and what each calls.

#include <QProgressBar>
#include <QPushButton>
#include <utility>

#include "core/Band.h"
#include "core/ChannelChoice.h"
#include "data/StationFile.h"
#include "forms/CommandIcons.h"
#include "forms/PlotList.h"
#include "forms/TimeBar.h"
#include "forms/frmAbout.h"
#include "forms/frmGetDistance.h"
#include "forms/frmPlot.h"
#include "forms/frmShowHets.h"
#include "map/View.h"
#include "ui/CommandColumn.h"
#include "ui/Controls.h"
#include "ui/Keys.h"
#include "ui/MapSurface.h"
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

void frmPlot::AddList(CommandColumn& column) {
  list_ = new PlotList(workspace_, *surface_, *menu_, *this);
  list_->MomentShown = [this] { return hour_.IsOn() ? timeBar_->At() : Now(); };
  list_->LookupAsked = [this](const std::string& call) { LookUp(Text(call)); };
  list_->ChannelAsked = [this](float frequency) { GoToChannel(frequency); };
  list_->Changed = [this] {
    timeBar_->ShowStation(list_->ChosenPlace());
    if (std::exchange(hour_.Rule, list_->Rule()) != hour_.Rule && hour_.IsOn()) Redraw();
  };
  hour_.Rule = list_->Rule();
  hour_.Moved = [this] { list_->Rerank(); };
  parts_.Add(*surface_, [this] { surface_->setFocus(); });
  parts_.Add(list_->Panel(), [this] { list_->FocusRows(); });
  parts_.Add(*timeBar_);
  parts_.Add(column);
  menu_->AddCommand("actNext", "&Next part of the window", [this] { parts_.Next(); });
  list_->SetOpen(menu_->IsOn("actList"));
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
