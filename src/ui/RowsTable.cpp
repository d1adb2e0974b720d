#include "ui/RowsTable.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScrollBar>
#include <algorithm>
#include <numeric>

namespace kestrel {
namespace {

using Columns = std::vector<RowsTable::Column>;
using Cells = std::function<QStringList(int row)>;

class RowsModel final : public QAbstractTableModel {
 public:
  RowsModel(Columns columns, int rows, Cells cells, QObject* parent)
      : QAbstractTableModel(parent), columns_(std::move(columns)), rows_(rows), cells_(std::move(cells)) {}

  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    if (!index.isValid()) return {};
    if (role == Qt::DisplayRole) return cells_(index.row()).value(index.column());
    if (role == Qt::TextAlignmentRole) return QVariant(At(index.column()).Side | Qt::AlignVCenter);
    return {};
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return At(section).Head;
    if (role == Qt::TextAlignmentRole)
      return QVariant(At(section).Side | Qt::AlignVCenter | Qt::AlignAbsolute);
    return {};
  }

 private:
  const RowsTable::Column& At(int column) const { return columns_[static_cast<std::size_t>(column)]; }

  Columns columns_;
  int rows_;
  Cells cells_;
};

/// The pixels of each column, with a character's room beside its cells.
std::vector<int> WidthsOf(const Columns& columns, int rows, const Cells& cells, const QFontMetrics& text,
                          const QFontMetrics& heads) {
  const int character = text.averageCharWidth();
  std::vector<int> widths;
  for (const RowsTable::Column& column : columns)
    widths.push_back(std::max(heads.horizontalAdvance(column.Head), character * column.Characters));
  for (int row = 0; row < rows; ++row) {
    const QStringList line = cells(row);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const QString& cell = line[static_cast<qsizetype>(i)];
      // Letters are wider than the average at times, hardly a whole cell of them.
      if (cell.size() > columns[i].Characters) widths[i] = std::max(widths[i], text.horizontalAdvance(cell));
    }
  }
  for (int& width : widths) width += 2 * character;
  return widths;
}

}  // namespace

RowsTable::RowsTable(const char* name, const QFont& font) {
  constexpr int kRowMargin = 4;  // pixels
  setObjectName(name);
  setFont(font);
  setLayoutDirection(Qt::LeftToRight);  // columns of English text and numbers
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setWordWrap(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  horizontalHeader()->setFont(QApplication::font());
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  // All rows of one height: thousands of them open at once.
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowMargin);
}

void RowsTable::SetRows(const std::vector<Column>& columns, int rows,
                        std::function<QStringList(int row)> cells, int wideColumn) {
  widths_ = WidthsOf(columns, rows, cells, fontMetrics(), horizontalHeader()->fontMetrics());
  wideColumn_ = wideColumn;
  QAbstractItemModel* former = model();
  QItemSelectionModel* formerChoice = selectionModel();
  setModel(new RowsModel(columns, rows, std::move(cells), this));
  delete formerChoice;
  delete former;
  horizontalHeader()->setVisible(!columns.front().Head.isEmpty());
  for (std::size_t i = 0; i < widths_.size(); ++i) setColumnWidth(static_cast<int>(i), widths_[i]);
  Widen();
}

void RowsTable::SetGrid(int columnWidth, int headHeight, int rowHeight) {
  for (int& width : widths_) width = std::max(width, columnWidth);
  for (std::size_t i = 0; i < widths_.size(); ++i) setColumnWidth(static_cast<int>(i), widths_[i]);
  horizontalHeader()->setMinimumHeight(headHeight);
  verticalHeader()->setDefaultSectionSize(std::max(RowHeight(), rowHeight));
  Widen();
}

void RowsTable::MoveCurrent(Qt::Key key) {
  const CursorAction action = key == Qt::Key_Up       ? MoveUp
                              : key == Qt::Key_Down   ? MoveDown
                              : key == Qt::Key_PageUp ? MovePageUp
                                                      : MovePageDown;
  setCurrentIndex(moveCursor(action, Qt::NoModifier));
}

void RowsTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (CurrentRowChanged && current.isValid()) CurrentRowChanged(current.row());
}

int RowsTable::WholeWidth() const {
  return std::accumulate(widths_.begin(), widths_.end(),
                         verticalScrollBar()->sizeHint().width() + 2 * frameWidth());
}

int RowsTable::RowHeight() const {
  return verticalHeader()->defaultSectionSize();
}

void RowsTable::Widen() {
  if (widths_.empty()) return;
  const int all = std::accumulate(widths_.begin(), widths_.end(), 0);
  const int rest = std::max(0, viewport()->width() - all);
  setColumnWidth(wideColumn_, widths_[static_cast<std::size_t>(wideColumn_)] + rest);
}

void RowsTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  Widen();
}

}  // namespace kestrel
