#pragma once

#include <QDialog>
#include <string>
#include <string_view>

#include "data/PlaceLists.h"
#include "forms/Workspace.h"

class QLabel;
class QLineEdit;

namespace kestrel {

/// Sets home: by a city, by a station's place, by typed coordinates or on the states map. A row taken from a
/// list counts at once; typed coordinates count when they are accepted.
class frmGetHome final : public QDialog {
 public:
  explicit frmGetHome(const Workspace& workspace, QWidget* parent = nullptr);

 private:
  void Take(const Place& place);
  void TakeTyped();
  void UseMap();
  void ShowCoordinates(const std::string& latitude, const std::string& longitude);
  /// Says below a box what its text is not, as it is typed.
  static void ShowHint(QLineEdit* box, QLabel* label, std::string_view (*hint)(std::string_view));

  Workspace workspace_;
  QLineEdit* latitude_;
  QLineEdit* longitude_;
  QString shownLatitude_;  // what the boxes hold when nobody has typed in them
  QString shownLongitude_;
  std::string takenName_;  // of the row taken last; empty: none
};

}  // namespace kestrel
