#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "ui/RowsTable.h"

class QLineEdit;

namespace kestrel {

/// How the lines of a list of places are shown and found.
struct PlaceListLook {
  QString Name;  ///< for screen readers
  std::vector<RowsTable::Column> Columns;
  int WideColumn = 0;                                         ///< takes the width that the others leave
  std::function<QStringList(const std::string& line)> Cells;  ///< as many as there are columns
  std::function<QStringList(const std::string& line)> Keys;   ///< what a search looks at
};

/// A list of places with a search box above it. Typing moves the list to the first row that fits; a click or
/// Enter takes a row.
class PlacePicker final : public QWidget {
 public:
  /// `listName` and `searchName` become the object names of the two controls, and their keys are those of the
  /// window's table. The lines must outlive the picker and not change.
  PlacePicker(QWidget& window, const char* listName, const char* searchName, const QString& searchHint,
              const std::vector<std::string>& lines, const PlaceListLook& look);

  /// Called with the row, counted from 0.
  std::function<void(int)> Taken;

  /// Called when typing or the arrow keys have led to a row that nobody has taken yet.
  std::function<void()> Highlighted;

  /// Takes that row; does nothing when there is none.
  void TakeHighlighted();

  /// From now on that row is like any other.
  void ForgetHighlighted() { highlighted_ = false; }

  QLineEdit* SearchBox() { return search_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddKeys(QWidget& window);
  void Find(const QString& text);
  int FirstRowBeginning(const QString& text) const;
  void TakeCurrent();

  const std::vector<std::string>& lines_;
  PlaceListLook look_;
  QLineEdit* search_;
  RowsTable* list_;
  bool highlighted_ = false;
};

/// City, state or country, latitude, longitude of the city list.
PlaceListLook CityColumns();

/// Call sign, place, latitude, longitude of the call-sign index.
PlaceListLook CallColumns();

/// The city list's lines as they stand.
PlaceListLook WholeCityLines();

}  // namespace kestrel
