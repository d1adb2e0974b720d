#include "forms/StationListModel.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <array>
#include <cmath>
#include <compare>

#include "core/Geodesy.h"
#include "core/Hours.h"
#include "core/Numbers.h"
#include "ui/Controls.h"

namespace kestrel {
namespace {

using Standing = ListedStation::Standing;

std::string Whole(double value) {
  return std::to_string(std::lround(value));
}

/// A digit before the point, as in ".5".
std::string Kilowatts(float kilowatts) {
  const std::string text = NumberText(kilowatts);
  return text.starts_with('.') ? '0' + text : text;
}

std::string BearingText(const RecordAtHome& record) {
  return std::to_string(std::lround(record.Bearing) % 360);
}

bool IsNumber(int column) {
  return column == StationListModel::Channel || column == StationListModel::Power ||
         column == StationListModel::Distance || column == StationListModel::Bearing ||
         column == StationListModel::Field;
}

QString ToolTipOf(int column) {
  static const std::array<const char*, StationListModel::ColumnCount> kTips = {
      "Call sign",
      "Channel",
      "City",
      "State or province",
      "Country",
      "The record on the air: D daytime, N nighttime, C critical hours, U unlimited",
      "Power in kilowatts",
      "Distance from home",
      "Bearing from home, degrees from true north",
      "Field at home, dB above 1 microvolt per metre; ? where the pattern is not known",
      "How good the chances are that it is this one",
      "How it comes, or why it is silent"};
  return kTips[static_cast<std::size_t>(column)];
}

}  // namespace

void StationListModel::SetStations(std::vector<ListedStation> stations, int distanceUnit) {
  beginResetModel();
  stations_ = std::move(stations);
  texts_ = StationTexts(stations_);
  inMiles_ = distanceUnit == 1;
  endResetModel();
}

double StationListModel::DistanceOf(const RecordAtHome& record) const {
  return inMiles_ ? record.Distance * MilesPerKilometre : record.Distance;
}

std::weak_ordering StationListModel::Compare(int a, int b, int column) const {
  const ListedStation& one = At(a);
  const ListedStation& other = At(b);
  const auto numbers = [](double x, double y) {
    return x < y   ? std::weak_ordering::less
           : x > y ? std::weak_ordering::greater
                   : std::weak_ordering::equivalent;
  };
  switch (column) {
    case Call:
      return one.Record->CallSign <=> other.Record->CallSign;
    case Channel:
      return numbers(one.Frequency, other.Frequency);
    case City:
      return one.Record->City <=> other.Record->City;
    case State:
      return one.Record->State <=> other.Record->State;
    case Country:
      return one.Record->Country <=> other.Record->Country;
    case OnAirHours:
      return HoursLetter(one.Record->OnAir) <=> HoursLetter(other.Record->OnAir);
    case Power:
      return numbers(one.Record->PowerKW, other.Record->PowerKW);
    case Distance:
      return numbers(one.Record->Distance, other.Record->Distance);
    case Bearing:
      return numbers(one.Record->Bearing, other.Record->Bearing);
    case Field:
      return numbers(one.Levels.Total, other.Levels.Total);
    case Chance:
      return other.Chance <=> one.Chance;  // the likely ones are more
    default:
      return one.Reason() <=> other.Reason();
  }
}

QString StationListModel::Head(int column) const {
  static const std::array<const char*, ColumnCount> kHeads = {
      "Call", "kHz", "City", "State", "Country", "Hours", "kW", "km", "Bearing", "dBu", "Chance", "Reason"};
  if (column == Distance && inMiles_) return "miles";
  return kHeads[static_cast<std::size_t>(column)];
}

QString StationListModel::Cell(int row, int column) const {
  const ListedStation& station = At(row);
  const RecordAtHome& record = *station.Record;
  switch (column) {
    case Call:
      return Text(record.CallSign);
    case Channel:
      return Text(NumberText(station.Frequency));
    case City:
      return Text(record.City);
    case State:
      return Text(record.State);
    case Country:
      return Text(record.Country);
    case OnAirHours:
      return station.IsOnAir() ? QString(HoursLetter(record.OnAir)) : QString();
    case Power:
      return station.IsOnAir() ? Text(Kilowatts(record.PowerKW)) : QString();
    case Distance:
      return Text(Whole(DistanceOf(record)));
    case Bearing:
      return Text(BearingText(record));
    case Field:
      if (!station.IsOnAir()) return {};
      return Text(Whole(station.Levels.Total)) + (record.Field.PatternIsKnown() ? "" : " ?");
    case Chance:
      return Text(station.Word());
    default:
      return Text(station.Reason());
  }
}

std::vector<std::string> StationListModel::FileHeads() const {
  return {"call",        "frequency", "city",     "state",
          "country",     "hours",     "power_kw", inMiles_ ? "distance_mi" : "distance_km",
          "bearing_deg", "field_dbu", "word",     "reason"};
}

std::vector<std::string> StationListModel::FileRow(int row) const {
  std::vector<std::string> fields;
  for (int column = 0; column < ColumnCount; ++column) fields.push_back(Cell(row, column).toStdString());
  if (At(row).IsOnAir()) fields[Field] = Whole(At(row).Levels.Total);  // the reason tells of the pattern
  return fields;
}

int StationListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(stations_.size());
}

int StationListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant StationListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const ListedStation& station = At(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return Cell(index.row(), index.column());
    case Qt::ToolTipRole:
      // Where a cell is cut off, the whole of it.
      return index.column() == Field ? ToolTipOf(Field) : Cell(index.row(), index.column());
    case Qt::AccessibleTextRole:
      if (index.column() != Field || !station.IsOnAir()) return Cell(index.row(), index.column());
      return Text(Whole(station.Levels.Total)) + " dB" +
             (station.Record->Field.PatternIsKnown() ? "" : ", pattern not known");
    case Qt::TextAlignmentRole:
      return QVariant((IsNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ForegroundRole:
      if (station.Now == Standing::OnAir) return {};
      return QApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    case Qt::FontRole:
      if (station.Now != Standing::OnAir || station.Chance != Likelihood::Likely) return {};
      {
        QFont bold;
        bold.setBold(true);
        return bold;
      }
    default:
      return {};
  }
}

QVariant StationListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) return {};
  if (role == Qt::DisplayRole) return Head(section);
  if (role == Qt::ToolTipRole) return ToolTipOf(section);
  if (role == Qt::TextAlignmentRole)
    return QVariant((IsNumber(section) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  return {};
}

StationOrder::StationOrder(StationListModel& model, QObject* parent)
    : QSortFilterProxyModel(parent), model_(model) {
  setDynamicSortFilter(false);
  setSourceModel(&model);
}

void StationOrder::SetFilter(std::vector<std::string> words) {
  words_ = std::move(words);
  invalidate();
}

bool StationOrder::filterAcceptsRow(int row, const QModelIndex&) const {
  return model_.At(row).Now != Standing::Hidden && model_.Matches(row, words_);
}

bool StationOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const ListedStation& one = model_.At(left.row());
  const ListedStation& other = model_.At(right.row());
  // Where the order is downwards, the answer is turned round.
  const bool upwards = sortOrder() == Qt::AscendingOrder;
  if (one.Now != other.Now) return (one.Now < other.Now) == upwards;
  const std::weak_ordering order = model_.Compare(left.row(), right.row(), left.column());
  if (order != 0) return order < 0;
  return one.Levels.Total != other.Levels.Total && (one.Levels.Total > other.Levels.Total) == upwards;
}

}  // namespace kestrel
