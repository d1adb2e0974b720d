#include "forms/StationTable.h"

#include <QHeaderView>
#include <QMenu>
#include <QSettings>
#include <algorithm>
#include <array>

#include "core/Csv.h"

namespace kestrel {
namespace {

const QString kColumns = "list/columns";
const QString kHidden = "list/hidden";

/// Room of the columns at first, in characters.
constexpr std::array<int, StationListModel::ColumnCount> kCharacters = {7, 5, 15, 5, 8, 6, 6, 6, 7, 5, 8, 34};

}  // namespace

StationTable::StationTable(const char* name, StationOrder& order) : order_(order) {
  setObjectName(name);
  setLayoutDirection(Qt::LeftToRight);  // columns of English text and numbers
  setModel(&order);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setWordWrap(false);
  setAlternatingRowColors(true);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
  QHeaderView* header = horizontalHeader();
  header->setHighlightSections(false);
  header->setSectionsMovable(true);
  header->setStretchLastSection(true);
  header->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(header, &QWidget::customContextMenuRequested, this, [this, header](QPoint at) {
    QMenu menu;
    FillColumnMenu(menu);
    menu.exec(header->mapToGlobal(at));
  });
  ShowUsualColumns();
  RestoreColumns();
  setSortingEnabled(true);
}

StationTable::~StationTable() {
  QStringList hidden;
  for (const int column : hidden_) hidden << QString::number(column);
  QSettings settings;
  settings.setValue(kColumns, horizontalHeader()->saveState());
  settings.setValue(kHidden, hidden);
}

void StationTable::ShowUsualColumns() {
  hidden_.clear();
  QHeaderView* header = horizontalHeader();
  const int character = fontMetrics().averageCharWidth();
  for (int column = 0; column < StationListModel::ColumnCount; ++column) {
    header->moveSection(header->visualIndex(column), column);
    header->showSection(column);
    header->resizeSection(column, character * (kCharacters[static_cast<std::size_t>(column)] + 2));
  }
  // What the list is for is seen first, also in a narrow window.
  header->moveSection(header->visualIndex(StationListModel::Field), 2);
  header->moveSection(header->visualIndex(StationListModel::Chance), 3);
  HideColumns();
  header->setSortIndicator(StationListModel::Field, Qt::DescendingOrder);
}

void StationTable::RestoreColumns() {
  const QSettings settings;
  if (!horizontalHeader()->restoreState(settings.value(kColumns).toByteArray())) return;
  for (const QString& column : settings.value(kHidden).toStringList()) hidden_.insert(column.toInt());
  HideColumns();
}

void StationTable::ShowColumn(int column, bool shown) {
  if (shown)
    hidden_.erase(column);
  else
    hidden_.insert(column);
  HideColumns();
}

void StationTable::HideColumns() {
  for (int column = 0; column < StationListModel::ColumnCount; ++column)
    setColumnHidden(column,
                    hidden_.count(column) > 0 || (column == StationListModel::Channel && !manyChannels_));
}

void StationTable::SetManyChannels(bool many) {
  manyChannels_ = many;
  HideColumns();
}

bool StationTable::Choose(int modelRow) {
  const QModelIndex index = order_.mapFromSource(order_.Model().index(modelRow, 0));
  if (!index.isValid()) return false;
  // The column stays: a table that scrolls sideways would jump.
  const int column = std::max(0, currentIndex().column());
  const QModelIndex cell = index.siblingAtColumn(isColumnHidden(column) ? 0 : column);
  selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  scrollTo(cell);
  return true;
}

std::optional<int> StationTable::Chosen() const {
  if (!currentIndex().isValid()) return std::nullopt;
  return order_.ModelRow(currentIndex());
}

std::vector<int> StationTable::SeenRows() const {
  std::vector<int> rows;
  for (int i = 0; i < order_.rowCount(); ++i) rows.push_back(order_.ModelRow(order_.index(i, 0)));
  return rows;
}

std::vector<int> StationTable::SelectedRows() const {
  QModelIndexList indexes = selectionModel()->selectedRows();
  std::sort(indexes.begin(), indexes.end());
  std::vector<int> rows;
  for (const QModelIndex& index : indexes) rows.push_back(order_.ModelRow(index));
  return rows;
}

QString StationTable::SelectedText() const {
  std::vector<int> columns;
  const QHeaderView* header = horizontalHeader();
  for (int i = 0; i < header->count(); ++i)
    if (!isColumnHidden(header->logicalIndex(i))) columns.push_back(header->logicalIndex(i));
  const auto line = [&columns](const auto& cell) {
    QStringList cells;
    for (const int column : columns) cells << cell(column);
    return cells.join('\t') + '\n';
  };
  const StationListModel& model = order_.Model();
  QString text = line([&](int column) { return model.Head(column); });
  const std::vector<int> selected = SelectedRows();
  for (const int row : selected.empty() ? SeenRows() : selected)
    text += line([&](int column) { return model.Cell(row, column); });
  return text;
}

std::string StationTable::Csv() const {
  const auto line = [](const std::vector<std::string>& fields) {
    std::string text;
    for (const std::string& field : fields) text += CsvField(field) + ',';
    text.back() = '\r';
    return text + '\n';
  };
  const StationListModel& model = order_.Model();
  std::string text = line(model.FileHeads());
  const std::vector<int> selected = SelectedRows();
  for (const int row : selected.size() > 1 ? selected : SeenRows()) text += line(model.FileRow(row));
  return text;
}

void StationTable::FillColumnMenu(QMenu& menu) {
  for (int column = 0; column < StationListModel::ColumnCount; ++column) {
    if (column == StationListModel::Channel && !manyChannels_) continue;
    QAction* action = menu.addAction(order_.Model().Head(column));
    action->setCheckable(true);
    action->setChecked(!isColumnHidden(column));
    // A table without columns could not be told from an empty one.
    action->setEnabled(column != StationListModel::Call);
    connect(action, &QAction::toggled, this, [this, column](bool shown) { ShowColumn(column, shown); });
  }
  menu.addSeparator();
  connect(menu.addAction("&Usual columns"), &QAction::triggered, this, [this] { ShowUsualColumns(); });
}

}  // namespace kestrel
