#pragma once

#include <QWidget>
#include <functional>

#include "forms/Workspace.h"
#include "map/MainMap.h"

class QGridLayout;
class QLabel;
class QProgressBar;
class QPushButton;

namespace kestrel {

class MapSurface;

/// The main window: the map around home and the column of commands. Every command works on the session and
/// then has the map drawn anew, or added to, from the files.
class frmPlot final : public QWidget {
 public:
  explicit frmPlot(const Workspace& workspace);

  /// Draws the map of the session, from empty paper or on top of what is there.
  void Redraw(MapGround ground = MapGround::Empty);

  MapSurface& Surface() { return *surface_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QPushButton* AddCommand(const char* name, const QString& caption, const QString& tip,
                          const QList<QKeySequence>& shortcuts, void (frmPlot::*action)());
  void AddCommands();

  // The commands.
  void ChooseFrequency();
  void ChannelUp();
  void ChannelDown();
  void NextHoursFilter();
  void ToggleCompass();
  void ChangeView(void (*change)(SessionState&));
  void ZoomInStep();
  void ZoomOutStep();
  void Larger();
  void Smaller();
  void ChooseScan();
  void StopScan();
  void Exit();

  void Scan();
  void ShowScanControls(bool running);
  void UpdateCommands();
  void SaveSessionOnce();
  void RestorePlace();

  Workspace workspace_;
  MapSurface* surface_;
  QGridLayout* commands_;
  QProgressBar* progress_;
  QLabel* savedNotice_;
  bool scanning_ = false;
  bool scanAgain_ = false;   // asked for while a scan ran
  bool closeAsked_ = false;  // likewise
  bool saved_ = false;
};

}  // namespace kestrel
