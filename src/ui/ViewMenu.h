#pragma once

#include <QMenu>
#include <functional>

#include "map/MapLook.h"

class QActionGroup;

namespace kestrel {

/// The menu of what belongs to the look of the main window: switches with a tick, and commands, each with its
/// key, which works in the whole window. What was chosen is kept between runs beside the window's place.
///
/// A switch is a row of the table in the .cpp and one of the keys' table.
class ViewMenu final : public QMenu {
 public:
  explicit ViewMenu(QWidget& window);

  /// Whether the switch of that name is on.
  bool IsOn(const char* name) const;

  /// The switches of the map itself.
  MapLook Look() const;

  /// Called with a switch's name when it was turned, "actLabels" for the labels.
  std::function<void(const QString& name)> Turned;

  /// Adds a command of the window at the menu's end; name, key and tip as in the keys' table.
  QAction* AddCommand(const char* name, const QString& caption, std::function<void()> action);

 private:
  QAction* Add(const char* name, const QString& caption);
  void AddLabels();
  void ChooseLabels(LabelChoice choice);

  QWidget& window_;
  QActionGroup* labels_;
};

}  // namespace kestrel
