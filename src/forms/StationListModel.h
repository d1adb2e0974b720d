#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <compare>
#include <string>
#include <vector>

#include "forms/ListedStations.h"

namespace kestrel {

/// Records and their fields at home as a table. Which of them are seen, and in which order, is StationOrder's
/// matter.
class StationListModel final : public QAbstractTableModel {
 public:
  enum Column {
    Call,
    Channel,
    City,
    State,
    Country,
    OnAirHours,
    Power,
    Distance,
    Bearing,
    Field,
    Chance,
    Reason,
    ColumnCount,
  };

  using QAbstractTableModel::QAbstractTableModel;

  /// Another table. `distanceUnit` as `SessionState::DistanceUnit`.
  void SetStations(std::vector<ListedStation> stations, int distanceUnit);
  /// The same records at another moment; who orders them must look at them anew.
  void SetMoment(std::vector<ListedStation> stations) { stations_ = std::move(stations); }

  const std::vector<ListedStation>& Stations() const { return stations_; }
  const ListedStation& At(int row) const { return stations_[static_cast<std::size_t>(row)]; }
  bool Matches(int row, const std::vector<std::string>& words) const {
    return texts_.Matches(static_cast<std::size_t>(row), words);
  }

  /// Numbers by their values, texts as they stand.
  std::weak_ordering Compare(int a, int b, int column) const;

  QString Head(int column) const;
  /// What stands in the cell; a "?" after the field marks a pattern that is not known.
  QString Cell(int row, int column) const;
  /// The columns' names in a file, and a row of it: whole numbers, nothing where there is no value.
  std::vector<std::string> FileHeads() const;
  std::vector<std::string> FileRow(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  double DistanceOf(const RecordAtHome& record) const;

  std::vector<ListedStation> stations_;
  StationTexts texts_;
  bool inMiles_ = false;
};

/// The rows of a StationListModel that are to be seen: first those on the air, then the struck ones, at the
/// end the silent ones, each in the order of the column chosen; equals strongest first.
class StationOrder final : public QSortFilterProxyModel {
 public:
  explicit StationOrder(StationListModel& model, QObject* parent);

  /// Call when the model's stations stand at another moment.
  void Reorder() { invalidate(); }
  void SetFilter(std::vector<std::string> words);

  const StationListModel& Model() const { return model_; }
  int ModelRow(const QModelIndex& index) const { return mapToSource(index).row(); }
  const ListedStation& At(const QModelIndex& index) const { return model_.At(ModelRow(index)); }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  StationListModel& model_;
  std::vector<std::string> words_;
};

}  // namespace kestrel
