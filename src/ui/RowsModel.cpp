#include "ui/RowsModel.h"

namespace kestrel {

RowsModel::RowsModel(QStringList heads, int rows, std::function<QStringList(int row)> cells, QObject* parent)
    : QAbstractTableModel(parent), heads_(std::move(heads)), rows_(rows), cells_(std::move(cells)) {}

int RowsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(heads_.size());
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid()) return {};
  return cells_(index.row()).value(index.column());
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  return heads_.value(section);
}

}  // namespace kestrel
