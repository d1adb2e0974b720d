#include "ui/Keys.h"

#include <QAction>
#include <QShortcut>
#include <set>

#include "forms/EveryForm.h"

namespace kestrel {
namespace {

/// "F" for a command of the window, as the table and the windows have it.
using Keys = std::set<std::pair<std::string, std::string>>;

Keys KeysInTable(const QString& window) {
  Keys keys;
  for (const CommandKeys& row : KeyTable())
    for (const QKeySequence& sequence : row.Sequences())
      if (window == row.Window) keys.emplace(row.Command, sequence.toString().toStdString());
  return keys;
}

class KeysTest : public FormTest {
 protected:
  /// Every key that the window has set stands in the table, and every row of the table names a thing there.
  void Look(QWidget& window) {
    const QString name = window.objectName();
    seen_ << name;
    const Keys table = KeysInTable(name);
    std::set<std::string> inTable;
    for (const auto& [command, key] : table) inTable.insert(key);
    const auto expect = [&](const QKeySequence& key, const char* what) {
      EXPECT_TRUE(inTable.count(key.toString().toStdString()))
          << name.toStdString() << ": " << key.toString().toStdString() << " of a " << what;
    };
    for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) expect(shortcut->key(), "shortcut");
    for (const QAction* action : window.findChildren<QAction*>())
      for (const QKeySequence& key : action->shortcuts()) expect(key, "action");
    for (const QPushButton* button : window.findChildren<QPushButton*>())
      if (button->isDefault()) {
        EXPECT_TRUE(table.count({button->objectName().toStdString(), "Return"}))
            << name.toStdString() << ": Enter presses " << button->objectName().toStdString();
      }
    for (const auto& [command, key] : table) {
      const bool named = window.findChild<QObject*>(QString::fromStdString(command)) != nullptr;
      EXPECT_TRUE(named || command.starts_with("channel")) << name.toStdString() << " has no " << command;
    }
  }

  QStringList seen_;
};

TEST_F(KeysTest, TheTableHasEveryKeyOfEveryWindow) {
  ForEveryForm(Everything, [this](QWidget& window) { Look(window); });
  for (const CommandKeys& row : KeyTable())
    EXPECT_TRUE(*row.Window == '\0' || seen_.contains(row.Window)) << row.Window;
}

}  // namespace
}  // namespace kestrel
