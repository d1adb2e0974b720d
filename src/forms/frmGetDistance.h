#pragma once

#include "forms/Form.h"
#include "ui/PositionEntry.h"

class QGridLayout;
class QLabel;
class QLineEdit;

namespace kestrel {

class PlacePicker;

/// Distance and bearing from home to a place, typed or picked from the city list.
class frmGetDistance final : public Form {
 public:
  explicit frmGetDistance(const Workspace& workspace, QWidget* parent = nullptr);

  /// Fills in the place, which lies west of Greenwich, and the answer.
  void ShowDistanceTo(const Position& place);

 private:
  /// A box for an answer and the label before it, hidden until there is one.
  struct Answer {
    QLabel* Caption;
    QLineEdit* Box;

    void Show(const std::string& text) const;
  };

  static Answer AddAnswer(QGridLayout* grid, const char* label, const char* box, const QString& caption,
                          int column);
  QWidget* MakeUnits();
  void Take(const std::string& cityLine);
  void SetUnit(std::int16_t unit);
  void GetDistance();
  bool Compute();  ///< whether what is typed is no place that is refused
  void ClearAnswers();

  PlacePicker* cities_;
  QGridLayout* grid_;
  PositionEntry target_;
  Answer bearing_, distance_;
  std::int16_t unit_ = 0;  // 0 kilometres, 1 miles, as selected here
};

}  // namespace kestrel
