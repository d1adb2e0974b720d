#include "forms/Monkey.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWheelEvent>
#include <algorithm>
#include <iostream>

namespace kestrel {
namespace {

const QStringList kTexts = {"",       "0",         "-0",        "620",       "1230", "535", "1700", "99999",
                            "1.1k",   "33.2",      "88.5",      "-97.2",     "12,5", ".",   "-",    "nan",
                            "inf",    "1e400",     "1e-400",    "QDN630",    "q",    "Pl",  "%s%n", "\t\n\r",
                            "\u0661", "\u202Eabc", "K\u00D6LN", "a b'c\"d;", "qarr"};

const QStringList kKeys = {
    "Tab",    "Tab",    "Shift+Backtab", "Return",     "Enter", "Space", "Esc",    "Up",        "Down",
    "Left",   "Right",  "PgUp",          "PgDown",     "Home",  "End",   "Del",    "Backspace", "+",
    "-",      "=",      "Shift+Up",      "Shift+Down", "F1",    "?",     "Ctrl+F", "Alt+Left",  "Menu",
    "Ctrl+A", "Ctrl+C", "Ctrl+X",        "Ctrl+Z",     "Print", "Ctrl+Q"};

/// The controls of a window that a user can reach, in the window's order.
template <typename Control>
QList<Control*> Usable(QWidget& window) {
  QList<Control*> controls = window.findChildren<Control*>();
  controls.removeIf([&](Control* control) {
    return control->window() != &window || !control->isVisible() || !control->isEnabled();
  });
  return controls;
}

/// The window that a user could work in, of several any; nullptr: none is open.
QWidget* WindowInReach(const std::function<int(int)>& below) {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  const QWidget* modal = QApplication::activeModalWidget();
  QWidgetList windows = QApplication::topLevelWidgets();
  windows.removeIf([modal](QWidget* window) {
    if (!window->isVisible() || window->windowType() == Qt::ToolTip) return true;
    return modal != nullptr && window != modal && window->objectName() != "frmGuide";
  });
  if (windows.isEmpty()) return nullptr;
  // The order of the list is that of addresses.
  std::sort(windows.begin(), windows.end(),
            [](QWidget* a, QWidget* b) { return a->objectName() < b->objectName(); });
  return windows[below(static_cast<int>(windows.size()))];
}

/// A button pressed by its mnemonic stays down for a tenth of a second before it counts; a walk that went on
/// meanwhile would not be the same twice.
bool AButtonIsDown() {
  const QWidgetList widgets = QApplication::allWidgets();
  return std::any_of(widgets.begin(), widgets.end(), [](QWidget* widget) {
    const auto* button = qobject_cast<QAbstractButton*>(widget);
    return button && button->isDown() && button->isVisible();
  });
}

QString ButtonName(const QAbstractButton& button) {
  return button.window()->objectName() + '/' + button.objectName();
}

}  // namespace

Monkey::Monkey(unsigned seed, int commands, const SampleFolder& folder)
    : random_(seed), commands_(commands), folder_(folder) {
  folder_.Put("amq.txt",
              FccRow("KAAA", "620", "5.0", "11") + FccRow("KBBB", "1230", "5.0", "12") + "|KCUT|62");
  folder_.Put("letter.txt", "Dear listener,\n");
  for (const char* name : {"REGION2.dat", "STATES.dat", "620x.dat", "630x.dat", "1230x.dat", "Kestrel.lst",
                           "StationsCall.DAT", "Stations.txt"})
    whole_.emplace_back(name, folder_.Text(name));
}

void Monkey::Say(const QString& what) const {
  if (Speaks) std::cerr << done_ << ' ' << what.toStdString() << std::endl;
}

void Monkey::Schedule() {
  QTimer::singleShot(0, this, &Monkey::Step);
}

void Monkey::Step() {
  // Before the command: one that opens a modal window returns when that is closed.
  Schedule();
  // The menu of a tool bar that is too narrow holds its button down until it is closed.
  if (QWidget* popup = QApplication::activePopupWidget()) return void(popup->close());
  if (AButtonIsDown()) return;
  QWidget* window = WindowInReach([this](int limit) { return Below(limit); });
  constexpr int kRoundsUntilItEnds = 1000;
  roundsWithoutWindow_ = window ? 0 : roundsWithoutWindow_ + 1;
  if (roundsWithoutWindow_ == kRoundsUntilItEnds) {
    ADD_FAILURE() << "the program goes on without a window";
    QApplication::quit();
  }
  if (!window) return;
  if (!AtWork()) return void(window->close());
  if (auto* dialog = qobject_cast<QPrintDialog*>(window)) return AnswerPrintDialog(*dialog);
  Watch(*window);
  ++done_;
  window->activateWindow();
  const int number = done_;
  Act(*window);
  if (number % 1000 == 0 && Thousand) Thousand();
}

void Monkey::Watch(QWidget& window) {
  const QString name = window.objectName();
  if (!name.startsWith("frm") && name != "PrintPreview") return;
  forms_.insert(name);
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    if (button->window() != &window || button->objectName().isEmpty()) continue;
    if (qobject_cast<QTabBar*>(button->parentWidget())) continue;  // Qt's own, to reach hidden tabs
    presses_.try_emplace(ButtonName(*button), 0);
    connect(button, &QAbstractButton::clicked, this, &Monkey::CountPress, Qt::UniqueConnection);
  }
}

void Monkey::CountPress() {
  ++presses_[ButtonName(*qobject_cast<QAbstractButton*>(sender()))];
}

/// The printers of the system and its files are no concern of the monkey's.
void Monkey::AnswerPrintDialog(QPrintDialog& dialog) {
  const bool prints = Below(3) != 0;
  Say(prints ? "print" : "no print");
  if (prints)
    dialog.printer()->setOutputFileName(folder_.Path(Below(4) == 0 ? "no folder/page.pdf" : "page.pdf"));
  static_cast<QDialog&>(dialog).done(prints ? QDialog::Accepted : QDialog::Rejected);
}

void Monkey::Act(QWidget& window) {
  const int choice = Below(100);
  if (choice < 40) return ClickButton(window);
  if (choice < 60) return PressKey(window);
  if (choice < 70) return PasteText(window);
  if (choice < 77) return PickRow(window);
  if (choice < 92) return UseMouse(window);
  if (choice < 94) return DropFiles(window);
  if (choice < 97) return Resize(window);
  if (choice < 99) return ChangeFile();
  Say("close " + window.objectName());
  window.close();
}

void Monkey::ClickButton(QWidget& window) {
  QList<QAbstractButton*> buttons = Usable<QAbstractButton>(window);
  if (buttons.isEmpty()) return;
  QAbstractButton* button = OneOf(buttons);
  Say("click " + window.objectName() + ' ' + button->objectName() + ' ' + button->text());
  QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

void Monkey::PressKey(QWidget& window) {
  QKeyCombination stroke = QKeySequence(OneOf(kKeys), QKeySequence::PortableText)[0];
  if (Below(3) == 0) {
    // A letter: the main window's shortcuts, and with Alt the captions' mnemonics.
    const auto letter = static_cast<Qt::Key>(Qt::Key_A + Below(26));
    stroke = QKeyCombination(Below(2) == 0 ? Qt::AltModifier : Qt::NoModifier, letter);
  }
  QWidget* target = window.focusWidget() && Below(4) != 0 ? window.focusWidget() : &window;
  Say("key " + window.objectName() + ' ' + target->objectName() + ' ' + QKeySequence(stroke).toString());
  QTest::keyClick(target, stroke.key(), stroke.keyboardModifiers());
}

void Monkey::PasteText(QWidget& window) {
  QList<QLineEdit*> boxes = Usable<QLineEdit>(window);
  if (boxes.isEmpty()) return;
  QLineEdit* box = OneOf(boxes);
  // Often the call sign that is on every channel, which leads to further forms.
  QString text = Below(4) == 0 ? QString("QARR") : OneOf(kTexts);
  if (Below(30) == 0) text = QString(20000, '9');
  Say("paste " + window.objectName() + ' ' + box->objectName() + ' ' + text.left(40));
  box->setFocus();
  if (Below(4) != 0) box->selectAll();
  QGuiApplication::clipboard()->setText(text);
  QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
  if (Below(2) == 0) QTest::keyClick(box, Qt::Key_Return);
}

void Monkey::PickRow(QWidget& window) {
  QList<QAbstractItemView*> lists = Usable<QAbstractItemView>(window);
  if (lists.isEmpty()) return;
  QAbstractItemView* list = OneOf(lists);
  const int rows = list->model() ? list->model()->rowCount() : 0;
  if (rows == 0) return;
  const QModelIndex index = list->model()->index(Below(rows), 0);
  Say("row " + list->objectName() + ' ' + QString::number(index.row()));
  list->scrollTo(index);
  const QPoint place = list->visualRect(index).center();
  if (Below(4) == 0)
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
  else
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
}

void Monkey::UseMouse(QWidget& window) {
  const QPoint place(Below(std::max(1, window.width())), Below(std::max(1, window.height())));
  QWidget* target = window.childAt(place);
  if (!target) target = &window;
  const QPoint at = target->mapFrom(&window, place);
  const QPoint to = at + QPoint(Below(201) - 100, Below(201) - 100);
  const int choice = Below(6);
  Say("mouse " + QString::number(choice) + ' ' + window.objectName() + ' ' + target->objectName());
  if (choice == 0) {
    QHelpEvent event(QEvent::ToolTip, at, target->mapToGlobal(at));
    QApplication::sendEvent(target, &event);
  } else if (choice == 1) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, target->mapToGlobal(at));
    QApplication::sendEvent(target, &event);
  } else if (choice == 2) {
    QWheelEvent event(at, target->mapToGlobal(at), {}, QPoint(0, 120 * (Below(9) - 4)), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
  } else {
    // A drag, or a click where it began and ended in one place. A press may close the window.
    const Qt::MouseButton button = Below(4) == 0 ? Qt::RightButton : Qt::LeftButton;
    const QPointer<QWidget> there = target;
    QTest::mousePress(target, button, {}, at);
    if (!there.isNull() && choice > 3) QTest::mouseMove(there, to);
    if (!there.isNull()) QTest::mouseRelease(there, button, {}, choice > 3 ? to : at);
  }
}

void Monkey::DropFiles(QWidget& window) {
  QMimeData data;
  QList<QUrl> urls;
  for (const QString& file : SomeFiles()) urls << QUrl::fromLocalFile(file);
  data.setUrls(urls);
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window, &enter);
  if (!window.acceptDrops() || !enter.isAccepted()) return;
  Say("drop " + window.objectName());
  QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window, &drop);
}

void Monkey::Resize(QWidget& window) {
  const QSize screen = window.screen()->availableSize();
  const QSize size(1 + Below(screen.width()), 1 + Below(screen.height()));
  Say("resize " + window.objectName());
  window.resize(size);
}

void Monkey::ChangeFile() {
  const auto& [name, whole] = OneOf(whole_);
  const int choice = Below(4);
  Say("file " + name + ' ' + QString::number(choice));
  if (choice == 0) return void(QFile::remove(folder_.Path(name)));
  if (choice == 1) return folder_.Put(name, whole.substr(0, 90) + ",,\xff\xfe,1e999\r\n\n");
  for (const auto& [any, text] : whole_) folder_.Put(any, text);
}

QStringList Monkey::SomeFiles() {
  const QStringList names = {"amq.txt", "letter.txt", "not there.txt", ".", "620x.dat"};
  QStringList files;
  for (int count = Below(4); count > 0; --count) files << folder_.Path(OneOf(names));
  return files;
}

void Monkey::ShowMessage(QWidget* parent, const QString& text) {
  Say("message " + text);
  desktop_.ShowMessage(parent, text);
}

bool Monkey::Confirm(QWidget* parent, const QString& question) {
  Say("question " + question);
  return desktop_.Confirm(parent, question);
}

std::optional<ColorValue> Monkey::ChooseColor(QWidget*, const QString&, ColorValue) {
  if (Below(3) == 0) return std::nullopt;
  return Below(5) == 0 ? 0 : Below(0x1000000);
}

QStringList Monkey::ChooseFiles(QWidget*, const QString&) {
  return SomeFiles();
}

QString Monkey::ChooseFileToWrite(QWidget*, const QString&, const QString& offered) {
  const QStringList names = {offered, "no folder/report.txt", "."};
  return Below(4) == 0 ? QString() : folder_.Path(OneOf(names));
}

void Monkey::ProcessEvents() {
  QApplication::processEvents();
}

std::optional<PrintOrder> Monkey::OfferPrinting(QWidget* parent, const PrintOffer& offer) {
  return desktop_.OfferPrinting(parent, offer);
}

}  // namespace kestrel
