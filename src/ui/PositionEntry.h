#pragma once

#include <QString>
#include <functional>
#include <string>
#include <string_view>

class QGridLayout;
class QLabel;
class QLineEdit;

namespace kestrel {

/// Two boxes in which a position is typed: txtLatitude and txtLongitude, a caption before each, and below
/// them hints at what the texts are not. A box is marked while it has a hint.
class PositionEntry {
 public:
  struct Caption {
    const char* Name;
    QString Text;
    QString Tip;  ///< of the box
  };

  /// Adds the controls to the first four columns and two rows of the grid.
  PositionEntry(QGridLayout& grid, const Caption& latitude, const Caption& longitude);

  /// Shows a position that nobody typed, without hints.
  void Show(const QString& latitude, const QString& longitude);

  /// What is in the boxes counts as shown.
  void CountAsShown();

  /// Whether a box holds another text than was shown last.
  bool LatitudeTyped() const { return latitude_.Typed(); }
  bool LongitudeTyped() const { return longitude_.Typed(); }
  bool Typed() const { return LatitudeTyped() || LongitudeTyped(); }

  /// What the boxes hold, for the number routine.
  std::string Latitude() const;
  std::string Longitude() const;

  enum class EmptyBox { IsNone, IsNoNumber };
  /// Says below the boxes what is no latitude or longitude. Whatever changes a box takes its hint away.
  void ShowHints(EmptyBox empty);

  /// Called when the text of a box has changed.
  std::function<void()> Edited;

  QLineEdit* LatitudeBox() { return latitude_.Box; }

 private:
  struct Part {
    QLineEdit* Box = nullptr;
    QLabel* Hint = nullptr;
    QString Shown;

    bool Typed() const;
    void SetHint(std::string_view hint);
  };

  Part AddPart(QGridLayout& grid, int column, const char* box, const char* hint, const Caption& caption);
  void Watch(Part& part);

  Part latitude_;
  Part longitude_;
};

}  // namespace kestrel
