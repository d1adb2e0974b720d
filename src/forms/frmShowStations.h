#pragma once

#include "forms/Form.h"

namespace kestrel {

/// The window in which the plot of the stations of all channels is chosen. It changes the session's scale and
/// pattern size, `PlotAllStations` and `StopRequested`; what is to be done after it has closed is its
/// Choice().
class frmShowStations final : public Form {
 public:
  enum class Plot {
    Nothing,      ///< no plot is wanted, or the window was left by its frame or Escape: nothing has changed
    AllStations,  ///< the stations of all channels are plotted
  };

  explicit frmShowStations(const Workspace& workspace, QWidget* parent = nullptr);

  Plot Choice() const { return choice_; }

 private:
  void ZoomIn();
  void CloseWith(Plot choice);

  Plot choice_ = Plot::Nothing;
};

}  // namespace kestrel
