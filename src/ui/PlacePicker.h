#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

class QLineEdit;
class QTableView;

namespace kestrel {

/// How the lines of a list of places are shown and found.
struct PlaceListLook {
  struct Column {
    QString Header;      ///< empty: no header is shown
    int Characters = 0;  ///< room for so many at least
    Qt::Alignment Alignment = Qt::AlignLeft;
  };
  std::vector<Column> Columns;
  int WideColumn = 0;                                         ///< takes the width that the others leave
  std::function<QStringList(const std::string& line)> Cells;  ///< as many as there are columns
  std::function<QStringList(const std::string& line)> Keys;   ///< what a search looks at
};

/// The lines as a table, row p showing line p. Nothing is copied; cells are cut when they are shown.
class PlaceTable final : public QAbstractTableModel {
 public:
  /// The lines must outlive the table and not change.
  PlaceTable(const std::vector<std::string>& lines, PlaceListLook look, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// The first row one of whose keys begins with `text` in whatever case; -1 when there is none.
  int FirstRowBeginning(const QString& text) const;

 private:
  const std::vector<std::string>& lines_;
  PlaceListLook look_;
};

/// A list of places with a search box above it. Typing moves the list to the first row that fits; a click or
/// Enter takes a row.
class PlacePicker final : public QWidget {
 public:
  /// `listName` and `searchName` become the object names of the two controls.
  PlacePicker(const char* listName, const char* searchName, const QString& searchHint,
              const std::vector<std::string>& lines, const PlaceListLook& look);

  /// Called with the row, counted from 0.
  std::function<void(int)> Taken;

  QLineEdit* SearchBox() { return search_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Find(const QString& text);
  void TakeCurrent();

  QLineEdit* search_;
  PlaceTable* table_;
  QTableView* list_;
};

/// City, state or country, latitude, longitude of the city list.
PlaceListLook CityColumns();

/// Call sign, place, latitude, longitude of the call-sign index.
PlaceListLook CallColumns();

/// The city list's lines as they stand.
PlaceListLook WholeCityLines();

}  // namespace kestrel
