#include "forms/frmShowStations.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/ViewLimits.h"
#include "ui/Controls.h"

namespace kestrel {

frmShowStations::frmShowStations(const Workspace& workspace, QWidget* parent) : QDialog(parent) {
  setObjectName("frmShowStations");
  setWindowTitle("KestrelII - Show all stations");
  SessionState& state = workspace.State;
  const bool plotRuns = !state.StopRequested;
  state.PlotAllStations = 0;

  auto* layout = new QVBoxLayout(this);
  const auto addButton = [&](const char* name, const QString& caption, const QString& tip, auto choose) {
    QPushButton* button = MakeButton(name, caption, tip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, choose] {
      choose();
      accept();
    });
    layout->addWidget(button);
    return button;
  };
  addButton("cmdAlterYes", "&Zoom in for local view", "The largest scale with the smallest patterns",
            [&state] {
              state.ScaleFactor = ScaleLimits.Highest;
              state.PatternSize = PatternSizeLimits.Lowest;
              state.PlotAllStations = 1;
            });
  addButton("cmdAlterNo", "&Leave mapsize intact", "Plots at the map's present scale", [&state] {
    state.PlotAllStations = 1;
  })->setDefault(true);
  addButton("cmdPlotNo", "&Return - no plotting", "Back to the map as it is",
            [&state] { state.PlotAllStations = 0; });
  addButton("cmdStop", "&Stop", "Ends the plot that runs", [&state] {
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
