#include "forms/frmShowTowers.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "map/TowerSheet.h"
#include "ui/Controls.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

constexpr float kTwipsPerPixel = 15;
constexpr int kLeastCharacters = 100;  // that the window is wide

}  // namespace

frmShowTowers::frmShowTowers(const Workspace& workspace, QWidget* parent, const StationSelection& selection)
    : QDialog(parent) {
  setObjectName("frmShowTowers");
  setWindowTitle("KestrelII - Tower data");
  const QSize screenSize = screen()->size();
  const ScreenTwips twips{static_cast<float>(screenSize.width()) * kTwipsPerPixel,
                          static_cast<float>(screenSize.height()) * kTwipsPerPixel};

  std::vector<TowerRow> rows;
  for (const StationRecord& record :
       LoadRecords(workspace.Folder, workspace.State.CurrentFrequency, selection))
    rows = TowerTable(record);
  text_ = QString::fromStdString(TowerTableText(rows));

  auto* table = new MapSurface(this, TowerSheetArea(twips));
  table->setObjectName("Table");
  table->setAccessibleName("Towers");
  table->setAccessibleDescription(text_);
  table->setToolTip("Ctrl+C copies the table");
  DrawTowerSheet(table->Drawing(), twips, rows);
  table->ShowDrawing();

  QPushButton* close = MakeButton("cmdExit", "&Close", "Back to the station's data (Escape)");
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(table, 1);
  layout->addWidget(close, 0, Qt::AlignLeft);
  // Half the screen; on a small one more, or the heads of the columns would run into each other.
  const int leastWidth = std::min(screenSize.width(), fontMetrics().averageCharWidth() * kLeastCharacters);
  resize((screenSize / 2).expandedTo({leastWidth, leastWidth * screenSize.height() / screenSize.width()}));
}

void frmShowTowers::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy))
    QGuiApplication::clipboard()->setText(text_);
  else
    QDialog::keyPressEvent(event);
}

}  // namespace kestrel
