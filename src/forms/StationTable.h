#pragma once

#include <QTableView>
#include <optional>
#include <set>
#include <string>

#include "forms/StationListModel.h"

class QMenu;

namespace kestrel {

/// The table of a StationListModel. Which columns are shown, in which order and how wide is the listener's
/// choice and kept between runs.
class StationTable final : public QTableView {
 public:
  StationTable(const char* name, StationOrder& order);
  ~StationTable() override;

  /// Whether rows of several channels are shown; with one its column would say the same in every row.
  void SetManyChannels(bool many);

  void Sort(int column, Qt::SortOrder order) { sortByColumn(column, order); }

  /// Makes a row of the model the current one and selects it alone, if it is seen. Returns whether it is.
  bool Choose(int modelRow);
  /// The current row of the model.
  std::optional<int> Chosen() const;

  /// Rows of the model that are selected, in the order seen.
  std::vector<int> SelectedRows() const;
  std::vector<int> SeenRows() const;

  /// The selected rows, or all where none is, as the columns shown have them: heads and rows, tabs between
  /// columns.
  QString SelectedText() const;
  /// Selected rows where there are several, else all, with every column: CSV (RFC 4180).
  std::string Csv() const;

  /// Adds an entry for each column, and one for all as at first.
  void FillColumnMenu(QMenu& menu);

 private:
  void ShowUsualColumns();
  void RestoreColumns();
  void ShowColumn(int column, bool shown);
  void HideColumns();

  StationOrder& order_;
  std::set<int> hidden_;  // by the listener
  bool manyChannels_ = false;
};

}  // namespace kestrel
