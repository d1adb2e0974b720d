#pragma once

#include <QDialog>

#include "forms/Workspace.h"

class QGridLayout;
class QLabel;
class QLineEdit;

namespace kestrel {

/// Distance and bearing from home to a place, typed or picked from the city list.
class frmGetDistance final : public QDialog {
 public:
  explicit frmGetDistance(const Workspace& workspace, QWidget* parent = nullptr);

 private:
  /// A box for an answer or an entry, the label before it and, under an entry, its hint.
  struct Entry {
    QLabel* Caption;
    QLineEdit* Box;
    QLabel* Hint = nullptr;
  };

  Entry AddEntry(QGridLayout* grid, const char* name, const QString& caption, const QString& tip, int column);
  Entry AddAnswer(QGridLayout* grid, const char* name, const QString& caption, int column);
  QWidget* MakeUnits();
  void Take(const std::string& cityLine);
  void SetUnit(std::int16_t unit);
  void Compute();

  Workspace workspace_;
  Entry latitude_, longitude_;  // of the target
  Entry bearing_, distance_;    // to it
  std::int16_t unit_ = 0;       // 0 kilometres, 1 miles, as selected here
};

}  // namespace kestrel
