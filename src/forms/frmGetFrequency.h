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
    Nothing,     ///< left by its frame or Escape, or a wrong entry led back to the channel shown
    OnTop,       ///< the channel is added to what is drawn
    AfterErase,  ///< the map is drawn anew
  };

  explicit frmGetFrequency(const Workspace& workspace, QWidget* parent = nullptr);

  Plot Choice() const { return choice_; }

 private:
  void AddPlot();
  void ErasePlot();
  void Enter(Plot choice, const char* overLimitMessage);
  void AddAdjacents();
  void Step(std::optional<std::string> (*step)(SessionState&));
  void CloseWith(Plot choice, const std::optional<std::string>& message);

  float shown_;  // the channel at opening, kHz
  QLineEdit* txtGetFrequency_;
  Plot choice_ = Plot::Nothing;
};

}  // namespace kestrel
