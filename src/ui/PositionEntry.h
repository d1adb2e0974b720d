#pragma once

#include <QString>
#include <optional>

#include "core/CoordinateEntry.h"
#include "core/Position.h"

class QGridLayout;
class QLabel;
class QLineEdit;

namespace kestrel {

/// Two boxes in which a position is typed: txtLatitude and txtLongitude, a caption before each, and below
/// them, while somebody types, what is read or what is wrong with it. A box is marked when its text is
/// doubtful or refused.
class PositionEntry {
 public:
  struct Caption {
    const char* Name;
    QString Text;
    QString Tip;  ///< of the box
  };

  /// Adds the controls to the first four columns and two rows of the grid.
  PositionEntry(QGridLayout& grid, EntryOf place, const Caption& latitude, const Caption& longitude);

  /// Shows a position that nobody typed, without notes.
  void Show(const QString& latitude, const QString& longitude);

  /// What is in the boxes counts as shown.
  void CountAsShown();

  /// Whether a box holds another text than was shown last.
  bool LatitudeTyped() const { return latitude_.Typed(); }
  bool LongitudeTyped() const { return longitude_.Typed(); }
  bool Typed() const { return LatitudeTyped() || LongitudeTyped(); }

  bool IsEmpty() const;  ///< whether nothing at all is in a box

  /// What the boxes say; nothing when one of them is refused.
  std::optional<Position> Read() const;

  /// Leads to the first box that is refused.
  void FocusRefused();

  QLineEdit* LatitudeBox() { return latitude_.Box; }

 private:
  struct Part {
    Axis Of;
    EntryOf Place;
    QLineEdit* Box = nullptr;
    QLabel* Note = nullptr;
    QString Shown = {};

    bool Typed() const;
    CoordinateEntry Read() const;
    void ShowNote(const CoordinateEntry& entry);
  };

  static void Add(QGridLayout& grid, int column, const char* box, const char* note, const Caption& caption,
                  Part& part);

  Part latitude_, longitude_;
};

}  // namespace kestrel
