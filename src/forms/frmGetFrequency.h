#pragma once

#include <optional>
#include <string>

#include "forms/Form.h"

class QLineEdit;

namespace kestrel {

/// The window in which the channel is chosen. It changes the session's channel; what is to be drawn after it
/// has closed is its Choice().
class frmGetFrequency final : public Form {
 public:
  enum class Plot {
    Nothing,     ///< the window was left by its frame or Escape: nothing has changed
    OnTop,       ///< the channel is added to what is drawn
    AfterErase,  ///< the map is drawn anew
  };

  explicit frmGetFrequency(const Workspace& workspace, QWidget* parent = nullptr);

  Plot Choice() const { return choice_; }

 private:
  void AddPlot();
  void ErasePlot();
  void AddAdjacents();
  void Step(std::optional<std::string> (*step)(SessionState&));
  void CloseWith(Plot choice, const std::optional<std::string>& message);

  QLineEdit* txtGetFrequency_;
  Plot choice_ = Plot::Nothing;
};

}  // namespace kestrel
