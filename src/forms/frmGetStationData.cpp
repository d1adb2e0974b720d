#include "forms/frmGetStationData.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "core/Text.h"
#include "forms/frmShowContext.h"
#include "forms/frmShowTowers.h"
#include "map/StationPlot.h"
#include "ui/Controls.h"
#include "ui/Keys.h"
#include "ui/MapSurface.h"
#include "ui/PrintCommands.h"
#include "ui/RowsTable.h"

namespace kestrel {
namespace {

constexpr double kWidthOfScreen = 0.75;
constexpr double kHeightOfScreen = 0.85;
constexpr double kListOfWindow = 0.3;    // the list takes no more of the height
constexpr double kLineOfScreen = 0.92;   // a line's heads take no more of the width
constexpr double kSmallestPoints = 7.5;  // unless they would be too small to read

/// Rows that the list is high, its frame among them; long ones are scrolled through a lower list.
double RowsHigh(std::size_t rows) {
  constexpr double kRow = 195;  // twips, as the others
  constexpr double kLongList = 1600;
  constexpr double kFrame = 200;
  constexpr double kHighest = 2700;
  const double lines = rows < 100 ? static_cast<double>(rows) * kRow : kLongList;
  return std::min(lines + kFrame, kHighest) / kRow;
}

/// The list's font, smaller where the screen is too narrow for a whole line.
QFont ListFont(int screenWidth) {
  QFont courier = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  courier.setFamilies({"Courier New", "DejaVu Sans Mono", "Liberation Mono", "Courier"});
  courier.setStyleHint(QFont::Monospace);
  // Half a point at a time: hinted letters are whole pixels wide.
  double points = QFontInfo(courier).pointSizeF();
  while (points > kSmallestPoints &&
         QFontMetricsF(courier).horizontalAdvance(Text(ListHeads())) > kLineOfScreen * screenWidth) {
    points = std::max(kSmallestPoints, points - 0.5);
    courier.setPointSizeF(points);
  }
  return courier;
}

}  // namespace

frmGetStationData::frmGetStationData(const Workspace& workspace, QWidget* parent, const QString& callSign)
    : Form(workspace, parent, "frmGetStationData", "Get data") {
  auto* rows = new QVBoxLayout(this);
  LayOutEntry(rows);
  LayOutList(rows);
  LayOutPlot(rows);
  const QSize available = screen()->availableSize();
  const QMargins margins = rows->contentsMargins();
  const int wholeLines = lineWidth_ + margins.left() + margins.right();
  resize(
      std::min(available.width(), std::max(wholeLines, static_cast<int>(available.width() * kWidthOfScreen))),
      static_cast<int>(available.height() * kHeightOfScreen));
  FitList();

  txtGetData_->setText(callSign.isEmpty() ? Text(UpperCase(workspace_.State.RememberedCallSign)) : callSign);
  txtGetData_->selectAll();
  txtGetData_->setFocus();
  if (!callSign.isEmpty()) Search();
}

QPushButton* frmGetStationData::AddCommand(QPushButton* button) {
  commands_.push_back(button);
  return button;
}

void frmGetStationData::LayOutEntry(QVBoxLayout* rows) {
  txtGetData_ = MakeBox("txtGetData", "The call sign of a station on this channel");
  QLabel* label1 = MakeLabel("Label1", "&Look for", txtGetData_);
  QLabel* label2 = MakeLabel("Label2", "in file");
  if (const auto channel = ChannelLabel(workspace_.State.CurrentFrequency)) label2->setText(Text(*channel));
  QPushButton* search = AddCommand(MakeButton(
      "cmdGetData", "Get &data", "Lists the records of this call sign (Enter)", [this] { Search(); }));
  search->setDefault(true);
  label4_ = MakeLabel("Label4", "Click on a line in the list to see that station's pattern ");
  label4_->setWordWrap(true);
  label4_->hide();

  band_ = MakeLabel("lblBand", KeysOf(*this, "lblBand").Tip());
  band_->setWordWrap(true);
  band_->hide();
  AddShortcuts(*this, "lblBand", [this] { AskForBand(); });

  auto* grid = new QGridLayout;
  grid->addWidget(label1, 0, 0);
  grid->addWidget(txtGetData_, 0, 1);
  grid->addWidget(label2, 0, 2);
  grid->addWidget(search, 1, 1);
  grid->addWidget(label4_, 1, 2);
  grid->addWidget(band_, 2, 0, 1, 3);
  grid->setColumnStretch(2, 1);
  rows->addLayout(grid);
}

void frmGetStationData::LayOutList(QVBoxLayout* rows) {
  const QFont courier = ListFont(screen()->availableSize().width());
  lstGetData_ = new RowsTable("lstGetData", courier);
  lstGetData_->setAccessibleName("Stations found");
  lstGetData_->setSelectionMode(QAbstractItemView::SingleSelection);
  ListRows();
  QLabel* label3 = MakeLabel("Label3", Text(ListHeads()));
  label3->setFont(courier);
  // The heads begin where the list's text does, and move with it where the window is too narrow for a line.
  label3->setIndent(lstGetData_->frameWidth() + style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
  lineWidth_ = label3->sizeHint().width();
  label3->setFixedWidth(2 * lineWidth_);  // lines may be longer than the heads
  auto* heads = new QScrollArea;
  // Columns of English text and numbers, whatever the desktop's direction.
  heads->setLayoutDirection(Qt::LeftToRight);
  heads->setWidget(label3);
  heads->setFixedHeight(label3->sizeHint().height());
  heads->setFrameShape(QFrame::NoFrame);
  heads->setFocusPolicy(Qt::NoFocus);
  heads->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  heads->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(lstGetData_->horizontalScrollBar(), &QScrollBar::valueChanged, heads->horizontalScrollBar(),
          &QScrollBar::setValue);
  lstGetData_->CurrentRowChanged = [this](int row) { ShowRecord(row); };
  const auto showCurrent = [this] { ShowRecord(lstGetData_->currentIndex().row()); };
  connect(lstGetData_, &QTableView::clicked, this, showCurrent);
  AddShortcuts(*this, "lstGetData", showCurrent, lstGetData_);
  rows->addWidget(heads);
  rows->addWidget(lstGetData_);
}

void frmGetStationData::LayOutPlot(QVBoxLayout* rows) {
  plot_ = new MapSurface(this, StationPlotArea);
  plot_->setObjectName("Plot");
  plot_->setAccessibleName("Pattern and towers");
  plot_->setAccessibleDescription("No station has been looked up yet");
  label5_ = MakeLabel("Label5", "Patterns are individually resized to fill the plotting area");
  label5_->hide();

  auto* column = new QVBoxLayout;
  const auto add = [this, column](QPushButton* button) { column->addWidget(AddCommand(button)); };
  add(MakeButton("cmdTowers", "&Tower data", "The towers of this record as a table",
                 [this] { OpenOnSelection(frmShowTowers(workspace_, this, selection_)); }));
  add(MakeButton("cmdContext", "&Maps", "Coasts and borders around the station",
                 [this] { OpenOnSelection(frmShowContext(workspace_, this, selection_)); }));
  add(MakeButton("cmdPrint", "&Print", "Prints this record's data, pattern and towers", [this] {
    PrintStation(workspace_.System, workspace_.Folder, workspace_.State, selection_, this);
  }));
  add(MakeButton("cmdExit", "&Close", "Back to the map (Escape)", [this] { reject(); }));
  column->addStretch();

  auto* row = new QHBoxLayout;
  row->addLayout(column);
  row->addWidget(plot_, 1);
  rows->addLayout(row, 1);
  rows->addWidget(label5_);
  for (QPushButton* button : commands_) button->setVisible(button->objectName() == "cmdGetData");
}

void frmGetStationData::Search() {
  SessionState& state = workspace_.State;
  const SearchResult result =
      SearchStations(workspace_.Folder, state.CurrentFrequency, txtGetData_->text().toStdString());
  if (!result.CallSign.empty()) state.RememberedCallSign = result.CallSign;
  txtGetData_->setText(Text(result.CallSign));

  rows_ = result.Rows;
  ListRows();
  band_->setVisible(rows_.empty() && !result.CallSign.empty());
  if (result.Ended) {
    label4_->show();
    FitList();
  }
  if (!result.Message.empty()) workspace_.System.ShowMessage(this, Text(result.Message));
  if (result.Ended && !rows_.empty()) {
    lstGetData_->selectRow(0);
    lstGetData_->setFocus();
  }
}

void frmGetStationData::AskForBand() {
  const QString call = txtGetData_->text().trimmed();
  reject();
  if (BandAsked) BandAsked(call);
}

void frmGetStationData::ListRows() {
  lstGetData_->SetRows(
      {{}}, static_cast<int>(rows_.size()),
      [this](int row) { return QStringList{Text(rows_[static_cast<std::size_t>(row)].Line)}; }, 0);
}

void frmGetStationData::ShowRecord(int row) {
  if (row < 0 || row >= static_cast<int>(rows_.size())) return;
  const StationSelection selection = rows_[static_cast<std::size_t>(row)].Selection;
  if (selection.SelectedCallSign.empty()) return;
  selection_ = selection;
  plot_->Drawing().Clear();
  const std::vector<StationRecord> records =
      LoadRecords(workspace_.Folder, workspace_.State.CurrentFrequency, selection_);
  DrawStationPlot(plot_->Drawing(), workspace_.State.AspectRatio, records);
  plot_->setAccessibleDescription(Text(StationPlotWords(records)));
  plot_->ShowDrawing();
  for (QPushButton* button : commands_) button->show();
  label5_->show();
}

void frmGetStationData::OpenOnSelection(QDialog&& form) {
  QWidget* focus = focusWidget();
  for (QPushButton* button : commands_) button->setEnabled(false);
  form.exec();
  for (QPushButton* button : commands_) button->setEnabled(true);
  if (focus != nullptr) focus->setFocus();
}

void frmGetStationData::FitList() {
  const double rows = RowsHigh(rows_.size());
  const bool scrolls = lstGetData_->WholeWidth() > lstGetData_->width();
  const int scrollBar = scrolls ? lstGetData_->horizontalScrollBar()->sizeHint().height() : 0;
  const double wanted = rows * lstGetData_->RowHeight() + scrollBar + 2 * lstGetData_->frameWidth();
  lstGetData_->setFixedHeight(static_cast<int>(std::min(wanted, height() * kListOfWindow)));
}

void frmGetStationData::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  FitList();
}

}  // namespace kestrel
