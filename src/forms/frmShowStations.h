#pragma once

#include <QDialog>

#include "forms/Workspace.h"

namespace kestrel {

/// The choice before the stations of all channels are plotted. It draws nothing: it leaves its answer in
/// `PlotAllStations`, `StopRequested` and the view's scale and pattern size. Left by its frame or Escape it
/// plots nothing.
class frmShowStations final : public QDialog {
 public:
  explicit frmShowStations(const Workspace& workspace, QWidget* parent = nullptr);
};

}  // namespace kestrel
