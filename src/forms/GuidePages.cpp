#include "forms/GuidePages.h"

#include <QCoreApplication>
#include <QDir>
#include <QWidget>
#include <array>

#include "ui/Keys.h"

namespace kestrel {
namespace {

constexpr std::array kWindows = {
    GuideWindow{"frmOpening", "The opening screen", "guide.md#the-opening-screen"},
    GuideWindow{"frmPlot", "The map", "guide.md#the-map"},
    GuideWindow{"StationList", "The list of stations", "guide/who.md#the-list"},
    GuideWindow{"frmGetFrequency", "Choosing a channel", "guide/frequency.md"},
    GuideWindow{"frmGetStationData", "Station data", "guide/station-data.md"},
    GuideWindow{"frmShowTowers", "Tower data", "guide/towers.md"},
    GuideWindow{"frmShowContext", "Maps", "guide/maps.md"},
    GuideWindow{"frmGetHome", "Home", "guide/home.md"},
    GuideWindow{"frmPlotStates", "The states map", "guide/home.md"},
    GuideWindow{"frmShowStations", "All stations", "guide/all-stations.md"},
    GuideWindow{"frmShowHets", "Heterodynes", "guide/heterodynes.md"},
    GuideWindow{"frmGetDistance", "Distance", "guide/distance.md"},
    GuideWindow{"frmOptions", "Options", "guide/options.md"},
    GuideWindow{"frmAspect", "Aspect", "guide/options.md#aspect"},
    GuideWindow{"PrintPreview", "Printing", "guide/printing.md"},
    GuideWindow{"frmImport", "Importing", "guide/import.md"},
    GuideWindow{"frmAbout", "About", "guide/about.md"},
    GuideWindow{"frmGuide", "This guide", "guide/this-guide.md"},
};

const GuideWindow* Find(const QString& window) {
  for (const GuideWindow& row : kWindows)
    if (window == row.Window) return &row;
  return nullptr;
}

/// The row of the panel or window that the widget is in, or of the nearest one that opened it.
const GuideWindow* WindowOf(const QWidget& widget) {
  for (const QWidget* around = &widget; around != nullptr; around = around->parentWidget())
    if (const GuideWindow* row = Find(around->objectName())) return row;
  return nullptr;
}

QString KeyLines(const char* window) {
  QString lines;
  for (const CommandKeys& keys : KeyTable())
    if (!keys.Sequences().isEmpty() && QString(keys.Window) == window)
      lines += QString("| **%1** | %2 |\n").arg(keys.Text(), keys.Does);
  return lines.isEmpty() ? lines : "\n| Key | What it does |\n|---|---|\n" + lines;
}

}  // namespace

std::span<const GuideWindow> GuideWindows() {
  return kWindows;
}

QStringList GuideContents() {
  QStringList pages;
  for (const GuideWindow& row : kWindows) pages << QString(row.Page).section('#', 0, 0);
  pages.removeDuplicates();
  return pages << "guide/view.md" << KeysPage;
}

QString PageOf(const QWidget& widget) {
  const GuideWindow* row = WindowOf(widget);
  return row ? row->Page : "guide.md";
}

QString KeysPageOf(const QWidget& widget) {
  const GuideWindow* row = WindowOf(widget);
  return row && !KeyLines(row->Window).isEmpty() ? QString(KeysPage) + '#' + HeadingAnchor(row->Name)
                                                 : KeysPage;
}

QStringList GuideFolders() {
  return {QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/kestrel/docs"),
          QString(KESTREL_DOCS_DIR)};
}

QString KeysMarkdown() {
  QString page =
      "# Keys\n\n"
      "In every window **Tab** goes from control to control and **Space** presses the one that is marked. "
      "With "
      "**Alt** and the letter underlined in its caption a button is pressed wherever you are. **Enter** "
      "presses the button with the heavier frame, or what stands below for the window; **Escape** closes a "
      "window as its Close or Return does, where nothing else is said. Text boxes and lists have the keys "
      "that they have everywhere.\n\n## Every window\n" +
      KeyLines("");
  for (const GuideWindow& row : kWindows) {
    const QString lines = KeyLines(row.Window);
    if (!lines.isEmpty()) page += QString("\n## %1\n").arg(row.Name) + lines;
  }
  return page;
}

QString MissingMarkdown(const QString& page, const QStringList& folders) {
  QString text = QString("# The guide is not there\n\nThe page `%1` was looked for in\n\n").arg(page);
  for (const QString& folder : folders) text += QString("- `%1`\n").arg(QDir::toNativeSeparators(folder));
  return text +
         "\nand could not be read there. It comes with the program: install the program again, or get the "
         "folder `docs` of its sources. The page of keys is always there: press **?**.\n";
}

QString TitleOf(const QString& markdown) {
  for (const QString& line : markdown.split('\n'))
    if (line.startsWith("# ")) return line.mid(2).trimmed();
  return {};
}

QString HeadingAnchor(const QString& heading) {
  QString anchor;
  for (const QChar character : heading.toLower()) {
    if (character == ' ') anchor += '-';
    if (character.isLetterOrNumber() || character == '-' || character == '_') anchor += character;
  }
  return anchor;
}

}  // namespace kestrel
