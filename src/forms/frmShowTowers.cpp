#include "forms/frmShowTowers.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <cmath>

#include "draw/Fonts.h"
#include "map/TowerSheet.h"
#include "ui/Controls.h"
#include "ui/Keys.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

constexpr float kTwipsPerPixel = 15;
constexpr double kSmallestXHeight = 7;  // pixels

/// The size from which on the table's text need not grow to be read.
QSize LegibleSize(const ScreenTwips& screen) {
  const Font font = TowerSheetFont(screen);
  const double scale = kSmallestXHeight / (font.Points * TwipsPerPoint * XHeightShare(font.Face));
  const SheetArea area = TowerSheetArea(screen);
  return {static_cast<int>(std::ceil(area.Width * scale)), static_cast<int>(std::ceil(area.Height * scale))};
}

}  // namespace

frmShowTowers::frmShowTowers(const Workspace& workspace, QWidget* parent, const StationSelection& selection)
    : Form(workspace, parent, "frmShowTowers", "Tower data") {
  const QSize screenSize = screen()->size();
  const ScreenTwips twips{static_cast<float>(screenSize.width()) * kTwipsPerPixel,
                          static_cast<float>(screenSize.height()) * kTwipsPerPixel};

  std::vector<TowerRow> rows;
  for (const StationRecord& record :
       LoadRecords(workspace.Folder, workspace.State.CurrentFrequency, selection))
    rows = TowerTable(record);
  const QString text = Text(TowerTableText(rows));

  auto* table = new MapSurface(this, TowerSheetArea(twips), kSmallestXHeight);
  table->setObjectName("Table");
  table->setAccessibleName("Towers");
  table->setAccessibleDescription(text);
  table->setToolTip(KeysOf(*this, "Table").Tip());
  AddShortcuts(*this, "Table", [text] { QGuiApplication::clipboard()->setText(text); });
  DrawTowerSheet(table->Drawing(), twips, rows);
  table->ShowDrawing();
  table->setMinimumSize(LegibleSize(twips).boundedTo(screen()->availableSize() * 0.9));

  QPushButton* close =
      MakeButton("cmdExit", "&Close", "Back to the station's data (Escape)", [this] { accept(); });
  close->setDefault(true);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(table, 1);
  layout->addWidget(close, 0, Qt::AlignLeft);
  resize(screenSize / 2);
}

}  // namespace kestrel
