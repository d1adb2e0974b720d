#pragma once

#include <functional>

#include "forms/Workspace.h"
#include "ui/MapSurface.h"

class QLabel;

namespace kestrel {

/// The opening screen: title, version and an overview map over a dark-to-blue background. Loading it reads
/// the lists and the last session.
class frmOpening final : public MapSurface {
 public:
  explicit frmOpening(const Workspace& workspace);

  /// Loads the place lists and the last session and draws the overview map. A list that cannot be read ends
  /// the loading with a message; the screen stays with what was done so far.
  void Load();

  /// Called once, when the screen has been painted for the first time: the moment to load.
  std::function<void()> FirstPainted;

  /// Called when Start is pressed, the session read by then.
  std::function<void()> Started;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLabel* AddLabel(const char* name, const QString& caption, FontFace face);
  void Start();
  void ReadSessionOnce();
  void PlaceControls();
  void FitStationsLine();

  Workspace workspace_;
  QString stationsLine_;
  bool sessionRead_ = false;
};

}  // namespace kestrel
