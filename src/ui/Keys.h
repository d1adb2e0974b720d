#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>
#include <functional>
#include <span>

class QAction;
class QKeyEvent;
class QWidget;

// Every key of every window stands in one table. The windows take their keys from it, and the guide's list of
// keys is made of it.

namespace kestrel {

/// The keys of one command.
struct CommandKeys {
  const char* Window;   ///< object name of the window; empty: every window
  const char* Command;  ///< object name of the button, action or control that they work
  const char* Keys;     ///< portable text, a blank between two: "+ ="; the first is the one to be told of
  const char* Does;     ///< what the command does, in words without a full stop

  QList<QKeySequence> Sequences() const;
  /// "Page Up"; of several "+ or =". Enter is named once.
  QString Text() const;
  /// What it does with its first key, for a tool tip: "Zooms in (+)".
  QString Tip() const;
};

/// All of them, window by window.
std::span<const CommandKeys> KeyTable();

/// The row of that command, which must be there.
const CommandKeys& KeysOf(const QWidget& window, const char* command);

/// Lets the command's keys do `action`, in the whole window or, where `where` is given, while that has the
/// focus.
void AddShortcuts(QWidget& window, const char* command, const std::function<void()>& action,
                  QWidget* where = nullptr);

/// The same for an action that depends on which of the keys it was.
void AddShortcuts(QWidget& window, const char* command,
                  const std::function<void(const QKeySequence&)>& action, QWidget* where);

/// The same for an action of that object name, which gets its tip as well.
void TakeKeys(QWidget& window, QAction& action);

/// Whether the event is a press of one of the command's keys, for windows that handle keys themselves.
bool IsKeyOf(const QKeyEvent& event, const QWidget& window, const char* command);

}  // namespace kestrel
