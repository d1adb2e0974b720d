#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>

namespace kestrel {

/// A table whose cells are made when they are shown, so that tens of thousands of rows open at once.
class RowsModel final : public QAbstractTableModel {
 public:
  /// `cells` gives the texts of a row, as many as there are heads.
  RowsModel(QStringList heads, int rows, std::function<QStringList(int row)> cells, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QStringList heads_;
  int rows_;
  std::function<QStringList(int row)> cells_;
};

}  // namespace kestrel
