#pragma once

#include <functional>
#include <vector>

#include "data/StationLookup.h"
#include "forms/Form.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace kestrel {

class MapSurface;
class RowsTable;

/// The station lookup: searches the current channel for a call sign, lists its records, and draws the pattern
/// and the towers of the record chosen.
class frmGetStationData final : public Form {
 public:
  /// A call sign given is looked up at once.
  frmGetStationData(const Workspace& workspace, QWidget* parent, const QString& callSign = {});

  /// Called, after the window has closed, when the call sign typed is to be looked for in the whole band.
  std::function<void(const QString& callSign)> BandAsked;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPushButton* AddCommand(QPushButton* button);
  void LayOutEntry(QVBoxLayout* rows);
  void LayOutList(QVBoxLayout* rows);
  void LayOutPlot(QVBoxLayout* rows);

  void Search();
  void AskForBand();
  void ListRows();
  void ShowRecord(int row);
  /// Opens a window on the selected record; the commands rest until it is closed, in whatever way.
  void OpenOnSelection(QDialog&& form);
  void FitList();

  std::vector<ListRow> rows_;
  StationSelection selection_;
  QLineEdit* txtGetData_ = nullptr;
  RowsTable* lstGetData_ = nullptr;
  QLabel* band_ = nullptr;  // offered when nothing was found
  QLabel* label4_ = nullptr;
  QLabel* label5_ = nullptr;
  MapSurface* plot_ = nullptr;
  std::vector<QPushButton*> commands_;
  int lineWidth_ = 0;  // pixels of the list's heads
};

}  // namespace kestrel
