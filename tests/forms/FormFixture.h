#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <functional>

#include "core/Text.h"
#include "forms/SampleFolder.h"
#include "forms/StandInPlatform.h"
#include "forms/Workspace.h"

namespace kestrel {

/// A form's surroundings: a session of its own, a platform that answers at once, a data folder with a little
/// of everything.
class FormTest : public ::testing::Test {
 protected:
  FormTest() { QSettings().clear(); }

  SampleFolder Files;
  SessionState State;
  StandInPlatform System;
  Workspace Everything{State, Files.Folder(), System};
};

/// The control of that object name. Our own classes have no meta-object, so Qt cannot search for them.
template <typename Control>
Control* Find(QWidget& form, const char* name) {
  auto* control = dynamic_cast<Control*>(form.findChild<QWidget*>(name));
  if (!control) ADD_FAILURE() << "no control " << name;
  return control;
}

/// Clicks a button; near its left edge, where an option has its circle.
inline void Press(QWidget& form, const char* name) {
  auto* button = Find<QAbstractButton>(form, name);
  QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

/// Replaces what a box holds, as people do.
inline void Type(QWidget& form, const char* box, const QString& text) {
  auto* edit = Find<QLineEdit>(form, box);
  edit->setFocus();
  edit->selectAll();
  text.isEmpty() ? QTest::keyClick(edit, Qt::Key_Delete) : QTest::keyClicks(edit, text);
}

/// What a box or a label shows, mnemonics left out.
inline std::string Shown(QWidget& form, const char* name) {
  auto* control = Find<QWidget>(form, name);
  QString text = control->property("text").toString();
  if (!qobject_cast<QLineEdit*>(control)) text.remove('&');
  return text.toStdString();
}

/// Clicks a row of a list, counted from 0.
inline void ClickRow(QWidget& form, const char* name, int row) {
  auto* list = Find<QAbstractItemView>(form, name);
  const QModelIndex index = list->model()->index(row, 0);
  list->scrollTo(index);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
}

/// A form shown as the program shows it, the event loop running while `story` works on it. Returns its
/// result.
inline int Use(QDialog& form, const std::function<void()>& story) {
  QTimer::singleShot(0, &form, [&] {
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&form));
    story();
    if (form.isVisible()) {
      ADD_FAILURE() << "the form is still open";
      form.reject();
    }
  });
  return form.exec();
}

/// A line of the city list.
inline std::string CityLine(const std::string& name, const std::string& latitude,
                            const std::string& longitude) {
  return PadTo("    12,345", 11) + PadTo(name, 26) + PadTo(latitude, 9) + ' ' + PadTo(longitude, 9);
}

/// A line of the call-sign index.
inline std::string CallLine(const std::string& call, const std::string& name, const std::string& latitude,
                            const std::string& longitude) {
  return PadTo(call, 8) + " 1230 " + PadTo(name, 25) + PadTo("  1 kW DN", 14) + PadTo(latitude, 9) + ' ' +
         PadTo(longitude, 9);
}

}  // namespace kestrel
