#pragma once

#include <QScrollArea>
#include <functional>

class QPushButton;
class QVBoxLayout;

namespace kestrel {

/// A column of command buttons, top to bottom. It scrolls where the window is too low for it.
class CommandColumn final : public QScrollArea {
 public:
  explicit CommandColumn(QWidget* parent = nullptr);

  /// Adds a button. Its keys and its tip are those of the window's command of that name; the keys work in the
  /// whole window while the button is enabled.
  QPushButton* AddCommand(const char* name, const QString& caption, std::function<void()> action);

  /// Leaves some room before the next command.
  void AddGap();

  /// Adds something that is no command.
  void AddWidget(QWidget* widget);

  /// Call when everything has been added: fixes the width.
  void Finish();

 private:
  QWidget* column_;
  QVBoxLayout* layout_;
};

}  // namespace kestrel
