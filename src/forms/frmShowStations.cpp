#include "forms/frmShowStations.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/ViewLimits.h"
#include "ui/Controls.h"

namespace kestrel {

frmShowStations::frmShowStations(const Workspace& workspace, QWidget* parent)
    : Form(workspace, parent, "frmShowStations", "Show all stations") {
  QPushButton* asItIs = MakeButton("cmdAlterNo", "&Leave mapsize intact", "Plots at the map's present scale",
                                   [this] { CloseWith(Plot::AllStations); });
  asItIs->setDefault(true);
  QPushButton* stop = MakeButton("cmdStop", "&Stop", "Ends the plot that runs", [this] {
    workspace_.State.StopRequested = true;
    CloseWith(Plot::Nothing);
  });
  stop->setEnabled(!workspace_.State.StopRequested);
  QLabel* notice = MakeLabel("lblTimeNotice",
                             "The process of showing the locations of all stations on all frequencies is "
                             "relatively time-consuming. ");
  notice->setWordWrap(true);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeButton("cmdAlterYes", "&Zoom in for local view",
                               "The largest scale with the smallest patterns", [this] { ZoomIn(); }));
  layout->addWidget(asItIs);
  layout->addWidget(MakeButton("cmdPlotNo", "&Return - no plotting", "Back to the map as it is",
                               [this] { CloseWith(Plot::Nothing); }));
  layout->addWidget(stop);
  layout->addSpacing(fontMetrics().height());
  layout->addWidget(notice);
  layout->addStretch();
  setMinimumWidth(fontMetrics().averageCharWidth() * 48);
  asItIs->setFocus();
}

void frmShowStations::ZoomIn() {
  workspace_.State.ScaleFactor = ScaleLimits.Highest;
  workspace_.State.PatternSize = PatternSizeLimits.Lowest;
  CloseWith(Plot::AllStations);
}

void frmShowStations::CloseWith(Plot choice) {
  workspace_.State.PlotAllStations = choice == Plot::AllStations ? 1 : 0;
  choice_ = choice;
  accept();
}

}  // namespace kestrel
