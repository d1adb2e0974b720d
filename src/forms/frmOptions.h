#pragma once

#include <functional>
#include <vector>

#include "forms/Form.h"

class QGridLayout;
class QLabel;

namespace kestrel {

class MapSurface;

/// Takes over the unit of the maps' distances that was chosen in an earlier run.
void LoadMapUnit(SessionState& state);

/// Colours of the patterns, language of the web map, unit of the maps' distances, the way to the aspect
/// adjustment. Every choice counts at once.
class frmOptions final : public Form {
 public:
  explicit frmOptions(const Workspace& workspace, QWidget* parent = nullptr);

  /// Opens the aspect adjustment; called when this window has closed.
  std::function<void()> OpenAspect;

 private:
  /// A colour, and the label and the outline that are drawn in it.
  struct Sample {
    ColorValue& Color;
    QLabel* Label;
    MapSurface* Outline;
  };

  /// What the colour's controls are called.
  struct ColorNames {
    const char* Button;
    QString Caption;
    const char* Label;
    QString Text;
    QString DialogTitle;
  };

  void AddColor(QGridLayout* grid, ColorValue& color, const ColorNames& names);
  /// One of a frame's options, of which one is chosen.
  struct Choice {
    const char* Name;
    QString Caption;
    bool Chosen;
    std::function<void()> Choose;
  };

  QWidget* MakeFrame(const char* name, const char* label, const QString& heading,
                     const std::vector<Choice>& choices);
  QWidget* MakeLanguageFrame();
  QWidget* MakeUnitFrame();
  void ChooseColor(ColorValue& color, const QString& title);
  void ShowColors();

  std::vector<Sample> samples_;
  QString dialogTitle_;  // what the colour dialog shows next; empty: its own title
};

}  // namespace kestrel
