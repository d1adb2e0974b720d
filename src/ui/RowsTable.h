#pragma once

#include <QStringList>
#include <QTableView>
#include <functional>
#include <vector>

namespace kestrel {

/// Rows of text in columns. Cells are made when they are shown, so that tens of thousands of rows open at
/// once. The columns take at least the room of their longest cells, so that a table too narrow for them
/// scrolls sideways; where it is wider, one column takes the rest.
class RowsTable final : public QTableView {
 public:
  struct Column {
    QString Head;
    int Characters = 0;  ///< room for so many at least
    Qt::Alignment Side = Qt::AlignLeft;
  };

  explicit RowsTable(const char* name, const QFont& font = {});

  /// Heads are shown where the first column has one. `cells` gives the texts of a row counted from 0, as many
  /// as there are columns.
  void SetRows(const std::vector<Column>& columns, int rows, std::function<QStringList(int row)> cells,
               int wideColumn);

  /// Called with the row that has become current, counted from 0, in whatever way.
  std::function<void(int)> CurrentRowChanged;

  /// Does what Up, Down, Page Up or Page Down does in the table.
  void MoveCurrent(Qt::Key key);

  /// Makes the columns at least so wide and heads and rows so high, in pixels, where their text has room.
  void SetGrid(int columnWidth, int headHeight, int rowHeight);

  /// The width in which every line is seen whole, in pixels.
  int WholeWidth() const;

  /// Pixels, the same for every row.
  int RowHeight() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void Widen();

  std::vector<int> widths_;  // of the columns, for their longest cells
  int wideColumn_ = 0;
};

}  // namespace kestrel
