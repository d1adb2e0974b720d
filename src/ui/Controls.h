#pragma once

#include <QFont>
#include <QString>
#include <functional>
#include <string>
#include <string_view>

class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

// The controls that forms are made of.

namespace kestrel {

/// UTF-8 as the windows show it.
QString Text(std::string_view text);

/// A button of that object name that does `action` when it is pressed; a "&" in its caption marks the
/// mnemonic.
QPushButton* MakeButton(const char* name, const QString& caption, const QString& tip,
                        std::function<void()> action);

/// Plain text of that object name; with a buddy its mnemonic leads there.
QLabel* MakeLabel(const char* name, const QString& caption, QWidget* buddy = nullptr);

/// Gives the widget's letters another weight and makes them so many times as large.
void ChangeFont(QWidget& widget, QFont::Weight weight, double growth = 1);

/// An entry box of that object name, some 12 characters wide.
QLineEdit* MakeBox(const char* name, const QString& tip);

/// Colours the box as one whose entry wants a second look, or as an ordinary one.
void MarkBox(QLineEdit* box, bool marked);

/// What the box holds, for the readers of numbers and coordinates: the decimal digits of every script as 0 to
/// 9, the Arabic decimal separator as a point, the minus sign of typesetting and every blank as those of the
/// keyboard.
std::string TypedNumber(const QLineEdit& box);

}  // namespace kestrel
