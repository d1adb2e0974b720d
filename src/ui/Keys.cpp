#include "ui/Keys.h"

#include <QAction>
#include <QKeyEvent>
#include <QShortcut>
#include <QStringList>
#include <QWidget>
#include <algorithm>
#include <array>
#include <cassert>
#include <cstring>

namespace kestrel {
namespace {

constexpr const char* kEnter = "Return Enter";
constexpr const char* kRows = "Up Down PgUp PgDown";
constexpr const char* kTakesRow = "In the list or the box above it: takes the marked row";
constexpr const char* kMovesMark = "In the box above the list: moves the mark in the list";

constexpr std::array kTable = {
    CommandKeys{"", "guide", "F1", "Opens this guide at the page of the window"},
    CommandKeys{"", "keys", "?", "Opens this list of keys; in a text box it is typed"},

    CommandKeys{"frmOpening", "cmdEnter", kEnter, "Leads to the map"},
    CommandKeys{"frmOpening", "cmdExit", "Esc", "Ends the program"},

    CommandKeys{"frmPlot", "cmdFreq", "F", "Chooses the channel"},
    CommandKeys{"frmPlot", "channelUp", "PgUp", "Goes one channel up"},
    CommandKeys{"frmPlot", "channelDown", "PgDown", "Goes one channel down"},
    CommandKeys{"frmPlot", "cmdData", "S", "Looks a station up: its data and its pattern"},
    CommandKeys{"frmPlot", "cmdHome", "M", "Chooses the home around which the map is drawn"},
    CommandKeys{"frmPlot", "cmdAll", "A", "Shows where the stations of all channels are"},
    CommandKeys{"frmPlot", "cmdHours", "H", "Shows all patterns, those of the day, those of the night"},
    CommandKeys{"frmPlot", "cmdCompass", "C", "Lays bearings from home over the map"},
    CommandKeys{"frmPlot", "cmdIn", "+ =", "Zooms in"},
    CommandKeys{"frmPlot", "cmdOut", "-", "Zooms out"},
    CommandKeys{"frmPlot", "cmdLarger", "Shift+Up", "Draws the patterns larger"},
    CommandKeys{"frmPlot", "cmdSmaller", "Shift+Down", "Draws the patterns smaller"},
    CommandKeys{"frmPlot", "cmdView", "V", "Chooses what of the map is shown"},
    CommandKeys{"frmPlot", "actLabels", "L", "Shows the labels that fit, all, or none"},
    CommandKeys{"frmPlot", "actLegend", "G", "Shows the legend, or hides it"},
    CommandKeys{"frmPlot", "actRings", "R", "Shows circles of round distances around home, or hides them"},
    CommandKeys{"frmPlot", "actScaleBar", "K", "Shows the scale bar, or hides it"},
    CommandKeys{"frmPlot", "actHourLines", "Y", "Tells the hours by broken lines as well as by colours"},
    CommandKeys{"frmPlot", "actTime", "T",
                "Shows the map at a moment, with the bar that chooses it, or the hours again"},
    CommandKeys{"frmPlot", "actCopyMap", "Ctrl+C Ctrl+Ins", "Copies the map as a picture"},
    CommandKeys{"frmPlot", "actSaveMap", "Ctrl+S", "Saves the map as a PNG, SVG or PDF file"},
    CommandKeys{"frmPlot", "actList", "W", "Opens the list of who it can be, or closes it"},
    CommandKeys{"frmPlot", "actBand", "Shift+W",
                "Lists the strongest of every channel, or the channel again"},
    CommandKeys{"frmPlot", "actFind", "Ctrl+F", "Finds a station in the list"},
    CommandKeys{"frmPlot", "actNext", "F6", "Goes round map, list, time and commands"},
    CommandKeys{"frmPlot", "actSay", "Shift+F6", "Says in a sentence what is on the air"},
    CommandKeys{"frmPlot", "move", "Left Right Up Down", "Moves the map, as dragging does"},
    CommandKeys{"frmPlot", "moveFar", "Ctrl+Left Ctrl+Right Ctrl+Up Ctrl+Down", "Moves it by half a window"},
    CommandKeys{"frmPlot", "actReset", "Home", "Home in the middle, scale and patterns as at first"},
    CommandKeys{"frmPlot", "cmdHets", "B", "Lists the beat notes on the channel"},
    CommandKeys{"frmPlot", "cmdDistance", "D", "Distance and bearing from home to a place"},
    CommandKeys{"frmPlot", "cmdOptions", "O", "Colours, map language, aspect"},
    CommandKeys{"frmPlot", "cmdPrint", "Ctrl+P", "Prints the map"},
    CommandKeys{"frmPlot", "cmdImport", "I", "Makes the station files from the FCC's files"},
    CommandKeys{"frmPlot", "cmdAbout", "", "Version, licence, where the data come from"},
    CommandKeys{"frmPlot", "cmdExit", "Ctrl+Q", "Saves the session and ends the program"},
    CommandKeys{"frmPlot", "cmdStop", "Esc", "Ends the plot of all stations before its next channel"},

    CommandKeys{"StationList", "txtFind", kEnter,
                "In the box: goes to the first station found, in the whole band to its channel"},
    CommandKeys{"StationList", "Stations", "Down", "In the box: goes to the rows"},
    CommandKeys{"StationList", "actLookUp", kEnter,
                "In the rows: looks the station up, or goes to its channel"},
    CommandKeys{"StationList", "actStrike", "Del", "In the rows: strikes a station out, or takes it back in"},
    CommandKeys{"StationList", "actCopy", "Ctrl+C Ctrl+Ins", "Copies the selected rows, or all"},
    CommandKeys{"StationList", "actSave", "Ctrl+S", "Saves the selected rows, or all, as CSV"},

    CommandKeys{"frmGetFrequency", "cmdErasePlot", kEnter, "Draws the map anew with the channel typed"},

    CommandKeys{"frmGetHome", "cmdExit", kEnter, "Accepts the place and returns"},
    CommandKeys{"frmGetHome", "lstCities", kEnter, kTakesRow},
    CommandKeys{"frmGetHome", "txtFindCity", kRows, kMovesMark},
    CommandKeys{"frmGetHome", "lstCalls", kEnter, kTakesRow},
    CommandKeys{"frmGetHome", "txtFindCall", kRows, kMovesMark},

    CommandKeys{"frmGetStationData", "cmdGetData", kEnter, "Lists the records of the call sign typed"},
    CommandKeys{"frmGetStationData", "lstGetData", kEnter, "In the list: draws the marked record again"},

    CommandKeys{"frmGetStationData", "lblBand", "Ctrl+F", "Looks for the call sign in the whole band"},

    CommandKeys{"frmShowTowers", "Table", "Ctrl+C Ctrl+Ins", "Copies the table"},
    CommandKeys{"frmShowTowers", "cmdExit", kEnter, "Back to the station's data"},

    CommandKeys{"frmShowContext", "cmdMore", "+ =", "Shows the map twice as large"},
    CommandKeys{"frmShowContext", "cmdLess", "-", "Shows twice as much of the map"},

    CommandKeys{"frmGetDistance", "cmdGetDistance", kEnter, "Computes distance and bearing"},
    CommandKeys{"frmGetDistance", "lstTarget", kEnter, kTakesRow},
    CommandKeys{"frmGetDistance", "txtFindTarget", kRows, kMovesMark},

    CommandKeys{"frmShowHets", "cmdExit", kEnter, "Back to the map"},

    CommandKeys{"frmShowStations", "cmdAlterNo", kEnter, "Shows all stations at the map's present scale"},

    CommandKeys{"frmOptions", "cmdExit", kEnter, "Back to the map, which takes the new colours"},

    CommandKeys{"frmImport", "cmdImport", kEnter, "Makes the station files anew from the files chosen"},

    CommandKeys{"frmAbout", "cmdExit", kEnter, "Back to the map"},

    CommandKeys{"PrintPreview", "cmdPrint", kEnter, "Chooses the printer and prints"},

    CommandKeys{"frmGuide", "actBack", "Alt+Left", "Back to the page read before"},
    CommandKeys{"frmGuide", "actForward", "Alt+Right", "Forward again"},
    CommandKeys{"frmGuide", "actFind", "Ctrl+F", "Finds words in the page"},
    CommandKeys{"frmGuide", "actNext", "F3 Ctrl+G", "Goes to where the words stand next"},
    CommandKeys{"frmGuide", "actPrevious", "Shift+F3 Ctrl+Shift+G", "Goes to where they stand before"},
    CommandKeys{"frmGuide", "txtFind", kEnter, "In the box for words: goes to where they stand next"},
    CommandKeys{"frmGuide", "actLarger", "Ctrl++ Ctrl+=", "Larger letters"},
    CommandKeys{"frmGuide", "actSmaller", "Ctrl+-", "Smaller letters"},
    CommandKeys{"frmGuide", "actUsual", "Ctrl+0", "Letters of the usual size"},
    CommandKeys{"frmGuide", "actClose", "Esc", "Closes the box for words, then the guide"},
};

/// As it stands on the keyboard.
QString KeyName(const QKeySequence& keys) {
  static const std::pair<QString, QString> kNames[] = {{"PgUp", "Page Up"},
                                                       {"PgDown", "Page Down"},
                                                       {"Esc", "Escape"},
                                                       {"Return", "Enter"},
                                                       {"Ins", "Insert"}};
  QStringList parts = keys.toString(QKeySequence::PortableText).split('+');
  for (const auto& [portable, name] : kNames)
    if (parts.last() == portable) parts.last() = name;
  return parts.join('+');
}

}  // namespace

QList<QKeySequence> CommandKeys::Sequences() const {
  QList<QKeySequence> sequences;
  for (const QString& keys : QString(Keys).split(' ', Qt::SkipEmptyParts))
    sequences << QKeySequence(keys, QKeySequence::PortableText);
  return sequences;
}

QString CommandKeys::Text() const {
  QStringList names;
  for (const QKeySequence& keys : Sequences()) names << KeyName(keys);
  names.removeDuplicates();
  return names.join(" or ");
}

QString CommandKeys::Tip() const {
  const QList<QKeySequence> sequences = Sequences();
  return sequences.isEmpty() ? QString(Does) : QString("%1 (%2)").arg(Does, KeyName(sequences.front()));
}

std::span<const CommandKeys> KeyTable() {
  return kTable;
}

const CommandKeys& KeysOf(const QWidget& window, const char* command) {
  const auto row = std::find_if(kTable.begin(), kTable.end(), [&](const CommandKeys& keys) {
    return window.objectName() == keys.Window && std::strcmp(keys.Command, command) == 0;
  });
  assert(row != kTable.end());
  return *row;
}

void AddShortcuts(QWidget& window, const char* command, const std::function<void()>& action, QWidget* where) {
  AddShortcuts(
      window, command, [action](const QKeySequence&) { action(); }, where);
}

void AddShortcuts(QWidget& window, const char* command,
                  const std::function<void(const QKeySequence&)>& action, QWidget* where) {
  for (const QKeySequence& keys : KeysOf(window, command).Sequences()) {
    auto* shortcut = new QShortcut(keys, where ? where : &window);
    if (where) shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &window, [action, keys] { action(keys); });
  }
}

void TakeKeys(QWidget& window, QAction& action) {
  const CommandKeys& keys = KeysOf(window, action.objectName().toUtf8().constData());
  action.setShortcuts(keys.Sequences());
  action.setToolTip(keys.Tip());
}

bool IsKeyOf(const QKeyEvent& event, const QWidget& window, const char* command) {
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  const QKeySequence pressed(QKeyCombination(modifiers, static_cast<Qt::Key>(event.key())));
  return KeysOf(window, command).Sequences().contains(pressed);
}

}  // namespace kestrel
