#include "forms/frmShowStations.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "map/View.h"

namespace kestrel {

frmShowStations::frmShowStations(const Workspace& workspace, QWidget* parent) : QDialog(parent) {
  setObjectName("frmShowStations");
  setWindowTitle("KestrelII - Show all stations");
  SessionState& state = workspace.State;
  const bool plotRuns = !state.StopRequested;
  state.PlotAllStations = 0;

  auto* layout = new QVBoxLayout(this);
  const auto addButton = [&](const char* name, const QString& caption, auto choose) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, choose] {
      choose();
      accept();
    });
    layout->addWidget(button);
    return button;
  };
  addButton("cmdAlterYes", "&Zoom in for local view", [&state] {
    state.ScaleFactor = LargestScale;
    state.PatternSize = SmallestPattern;
    state.PlotAllStations = 1;
  });
  addButton("cmdAlterNo", "&Leave mapsize intact", [&state] { state.PlotAllStations = 1; })->setDefault(true);
  addButton("cmdPlotNo", "&Return - no plotting", [&state] { state.PlotAllStations = 0; });
  addButton("cmdStop", "&Stop", [&state] {
    state.StopRequested = true;
    state.PlotAllStations = 0;
  })->setEnabled(plotRuns);

  auto* notice = new QLabel(
      "The process of showing the locations of all stations on all frequencies is relatively "
      "time-consuming. ");
  notice->setObjectName("lblTimeNotice");
  notice->setWordWrap(true);
  layout->addSpacing(fontMetrics().height());
  layout->addWidget(notice);
  layout->addStretch();
  setMinimumWidth(fontMetrics().averageCharWidth() * 48);
}

}  // namespace kestrel
