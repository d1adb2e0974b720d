#pragma once

#include <QPointer>
#include <QWidget>
#include <optional>
#include <string>
#include <vector>

#include "forms/MapHour.h"
#include "forms/MapView.h"
#include "forms/Workspace.h"
#include "map/MainMap.h"
#include "map/PrintedPages.h"
#include "ui/WindowParts.h"

class QDialog;
class QLabel;
class QProgressBar;
class QPushButton;

namespace kestrel {

class CommandColumn;
class frmAspect;
class frmGetDistance;
class MapSurface;
class PlotList;
class StatusLine;
class ViewMenu;

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
  void AddCommands(CommandColumn& column);
  void AddViewCommands(CommandColumn& column);
  void AddViewMenu();
  void ShowMenuAt(QPoint pixel);
  void AddList(CommandColumn& column);

  void RunForm(QDialog& form);
  void RunForm(QDialog&& form) { RunForm(form); }
  void ChooseFrequency();
  void StepChannel(std::optional<std::string> (*step)(SessionState&));
  void LookUp(const QString& callSign);
  void ChooseHome();
  void ChooseOptions();
  void ImportStations();
  void AdjustAspect();
  void TurnTime(bool on);
  void GoToChannel(float frequency);
  void NextHoursFilter();
  void ToggleCompass();
  ShownMap PresentMap() const;
  void Print();
  void CopyMap();
  void SaveMap();
  void ShowDistanceTo(const Position& place);
  void MeasureWith(frmGetDistance& form);
  void MakeHome(const Position& place);
  std::vector<std::string> DrawOn(MapGround ground);
  void TellOfMap();

  void ChooseScan();
  void Scan();
  void ScanOnce();
  void ShowScanControls(bool running);

  /// Shows in a line under the map what its readers left out; none when they left out nothing.
  void SayLeftOut(const std::vector<std::string>& notes);

  QString TipAt(Point place) const;
  void ClickAt(Point place);

  QPushButton* Button(const char* name) const;
  void UpdateCommands();
  QString Words() const;
  void SaveSessionOnce();

  Workspace workspace_;
  MapSurface* surface_;
  MapView view_;
  TimeBar* timeBar_;
  MapHour hour_;
  ViewMenu* menu_;
  StatusLine* status_;
  PlotList* list_;
  WindowParts parts_;
  QProgressBar* progress_;
  QLabel* savedNotice_;
  QLabel* leftOut_;
  QPointer<frmAspect> aspect_;  // while it is open
  bool scanning_ = false;
  bool scanned_ = false;     // the map began with the stations of a scan
  bool added_ = false;       // another channel was drawn on top
  bool scanAgain_ = false;   // asked for while a scan ran
  bool closeAsked_ = false;  // likewise
  bool saved_ = false;
};

}  // namespace kestrel
