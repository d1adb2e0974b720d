#include "forms/frmShowTowers.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "data/TowerTable.h"
#include "ui/Controls.h"
#include "ui/Keys.h"
#include "ui/RowsTable.h"

namespace kestrel {
namespace {

// Shares of the screen, at whose half the window opens.
constexpr double kLeft = 0.05;
constexpr double kColumnWidth = 0.07;
constexpr double kTop = 0.015;
constexpr double kFirstRow = 0.055;
constexpr double kRowStep = 0.025;
constexpr double kLetters = 0.016;
constexpr int kSmallestLetters = 11;  // pixels

}  // namespace

frmShowTowers::frmShowTowers(const Workspace& workspace, QWidget* parent, const StationSelection& selection)
    : Form(workspace, parent, "frmShowTowers", "Tower data") {
  std::vector<TowerRow> rows;
  for (const StationRecord& record :
       LoadRecords(workspace.Folder, workspace.State.CurrentFrequency, selection))
    rows = TowerTable(record);

  const QSize screenSize = screen()->size();
  const auto across = [&](double share) { return qRound(screenSize.width() * share); };
  const auto down = [&](double share) { return qRound(screenSize.height() * share); };
  QFont letters = font();
  letters.setPixelSize(std::max(kSmallestLetters, down(kLetters)));
  auto* table = new RowsTable("Table", letters);
  table->setAccessibleName("Towers");
  table->setToolTip(KeysOf(*this, "Table").Tip());
  AddShortcuts(*this, "Table",
               [text = Text(TowerTableText(rows))] { QGuiApplication::clipboard()->setText(text); });
  std::vector<RowsTable::Column> columns;
  for (const char* head : TowerHeads) columns.push_back({head});
  const auto cells = [rows](int row) {
    QStringList texts;
    for (const std::string& text : rows[static_cast<std::size_t>(row)]) texts << Text(text);
    return texts;
  };
  table->SetRows(columns, static_cast<int>(rows.size()), cells, TowerColumns - 1);
  table->SetGrid(across(kColumnWidth), down(kFirstRow - kTop), down(kRowStep));

  QPushButton* close =
      MakeButton("cmdExit", "&Close", "Back to the station's data (Escape)", [this] { accept(); });
  close->setDefault(true);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(across(kLeft), down(kTop), across(kLeft) / 2, down(kTop));
  layout->addWidget(table, 1);
  layout->addWidget(close, 0, Qt::AlignLeft);
  resize(screenSize / 2);
  close->setFocus();
}

}  // namespace kestrel
