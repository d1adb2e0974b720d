// The controls of the list of stations, and what its commands do.

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "data/FileIo.h"
#include "forms/ListenerBar.h"
#include "forms/StationList.h"
#include "forms/StationTable.h"
#include "forms/StationWords.h"
#include "ui/Controls.h"
#include "ui/FlowLayout.h"
#include "ui/Keys.h"

namespace kestrel {
namespace {

constexpr int kFewestRows = 4;     // and the header
constexpr int kRoomForWords = 22;  // lines of text

QLabel* MakeWrapped(const char* name, const QString& text = {}) {
  QLabel* label = MakeLabel(name, text);
  label->setWordWrap(true);
  return label;
}

}  // namespace

void StationList::LayOut() {
  auto* bar = new FlowLayout;
  LayOutFind(*bar);
  choices_ = new ListenerBar(*bar, this);
  choices_->Changed = [this] {
    Show(frequencies_, moment_);
    if (ChoicesChanged) ChoicesChanged();
  };
  bar->addWidget(MakeButton("cmdSave", "Save list", "Writes the selected rows, or all, as CSV (Ctrl+S)",
                            [this] { Save(); }));

  table_->setAccessibleName("Stations by their fields at home");
  table_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(table_, &QWidget::customContextMenuRequested, this, [this](QPoint at) { ShowMenu(at); });
  connect(table_, &QTableView::doubleClicked, this, [this] { Activate(); });
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { CurrentChanged(); });

  now_ = MakeWrapped("lblNow");
  told_ = MakeWrapped("lblChosen");
  auto* rows = new QVBoxLayout(this);
  const int margin = fontMetrics().height() / 3;
  rows->setContentsMargins(margin, margin, margin, margin);
  rows->setSpacing(margin);
  rows->addLayout(bar);
  rows->addWidget(now_);
  rows->addWidget(table_, 1);
  rows->addWidget(told_);
  worth_ = MakeWrapped("lblWorth",
                       "Fields are medians of a year's nights over one kind of ground: 6 dB off at the "
                       "best, more where ? says that the pattern is not known.");
  rows->addWidget(worth_);
  table_->setMinimumHeight(kFewestRows * table_->verticalHeader()->defaultSectionSize());
}

void StationList::resizeEvent(QResizeEvent* event) {
  // A small panel has room for rows before words, which then stand in the tip.
  const bool roomForWords = height() > kRoomForWords * fontMetrics().height();
  now_->setToolTip(roomForWords ? QString() : worth_->text());
  worth_->setVisible(roomForWords);
  // A splitter does not ask how high the bar is in this width.
  setMinimumHeight(layout()->totalMinimumHeightForWidth(width()));
  QWidget::resizeEvent(event);
}

void StationList::LayOutFind(FlowLayout& bar) {
  find_ = MakeBox("txtFind", KeysOf(*this, "txtFind").Tip());
  find_->setPlaceholderText("call, city, state");
  find_->setClearButtonEnabled(true);
  connect(find_, &QLineEdit::textChanged, this, [this] {
    if (!quiet_) Fill();
  });
  connect(find_, &QLineEdit::returnPressed, this, [this] { TakeFound(); });
  wholeBand_ = new QCheckBox("&Whole band");
  wholeBand_->setObjectName("chkBand");
  wholeBand_->setToolTip("The strongest station of every channel, or what is looked for on all of them");
  connect(wholeBand_, &QCheckBox::toggled, this, [this] { BandTurned(); });
  progress_ = new QProgressBar;
  progress_->setObjectName("prgBand");
  progress_->setAccessibleName("Channels read");
  progress_->setMaximumWidth(fontMetrics().averageCharWidth() * 20);
  progress_->hide();
  stop_ = MakeButton("cmdStopBand", "Stop", "Goes back to the channel", [this] { stopAsked_ = true; });
  stop_->hide();
  QWidget* find = Named("lblFind", "Loo&k for", find_);
  find->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  for (QWidget* widget : {find, static_cast<QWidget*>(wholeBand_), static_cast<QWidget*>(progress_),
                          static_cast<QWidget*>(stop_)})
    bar.addWidget(widget);
}

void StationList::AddActions() {
  const auto add = [this](const char* name, const QString& caption, void (StationList::*does)()) {
    auto* action = new QAction(caption, this);
    action->setObjectName(name);
    TakeKeys(*this, *action);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [this, does] { (this->*does)(); });
    table_->addAction(action);
    return action;
  };
  lookUp_ = add("actLookUp", "&Look up", &StationList::Activate);
  strike_ = add("actStrike", "&Strike out", &StationList::Strike);
  add("actCopy", "&Copy", &StationList::Copy);
  add("actSave", "Sa&ve list...", &StationList::Save);
  for (QWidget* control : findChildren<QWidget*>()) control->installEventFilter(this);
}

void StationList::ShowMenu(QPoint at) {
  const ListedStation* station = Chosen();
  const bool onChannel = station && !IsWholeBand() && station->Frequency == workspace_.State.CurrentFrequency;
  lookUp_->setText(onChannel ? "&Look up" : "&Go to the channel");
  const bool struck = station && station->Now == ListedStation::Standing::Struck;
  strike_->setText(struck ? "&Take back in" : "&Strike out");
  QMenu menu;
  menu.addActions(table_->actions());
  menu.addSeparator();
  table_->FillColumnMenu(*menu.addMenu("Col&umns"));
  menu.exec(table_->viewport()->mapToGlobal(at));
}

void StationList::Strike() {
  using Standing = ListedStation::Standing;
  std::vector<std::string> calls;
  bool anyIn = false;
  for (const int row : table_->SelectedRows()) {
    const ListedStation& station = model_.At(row);
    if (!station.IsOnAir()) continue;
    calls.push_back(station.Record->CallSign);
    anyIn = anyIn || station.Now != Standing::Struck;
  }
  for (const std::string& call : calls) {
    std::erase(struck_, call);
    if (anyIn) struck_.push_back(call);
  }
  if (!calls.empty()) Rerank(moment_);
}

void StationList::Copy() {
  QGuiApplication::clipboard()->setText(table_->SelectedText());
}

void StationList::Save() {
  const QString offered = IsWholeBand() ? "Whole band.csv" : ChannelsText(frequencies_) + ".csv";
  const QString name = workspace_.System.ChooseFileToWrite(window(), "Save list", offered);
  if (name.isEmpty()) return;
  if (const Result<Done> written = WriteFile(name, table_->Csv()); !written)
    workspace_.System.ShowMessage(window(), Text(written.error().Message()));
}

void StationList::Tell() {
  const QString hour = HourText(moment_);
  const bool band = IsWholeBand() && band_.Band;
  const auto count = [&](auto standing) {
    const std::vector<ListedStation>& all = channels_.Stations;
    return std::count_if(all.begin(), all.end(), standing);
  };
  const bool looking = !find_->text().trimmed().isEmpty();
  QString text;
  if (band && looking) {
    text = QString("Whole band, %1: %2 found").arg(hour).arg(found_);
    if (found_ > model_.Stations().size())
      text += QString(", the strongest %1").arg(model_.Stations().size());
  } else if (band) {
    text = QString("Whole band, %1: the strongest of %2 channels").arg(hour).arg(order_->rowCount());
  } else if (channels_.Stations.empty()) {
    text = ChannelsText(frequencies_) + ": no station data";
  } else {
    text = QString("%1, %2: %3 on the air, %4 silent")
               .arg(ChannelsText(frequencies_), hour)
               .arg(count([](const ListedStation& station) { return station.IsOnAir(); }))
               .arg(count([](const auto& s) { return s.Now == ListedStation::Standing::Silent; }));
    if (looking) text += QString(", %1 found").arg(order_->rowCount());
  }
  now_->setText(text);
  TellChosen();
}

void StationList::TellChosen() {
  const ListedStation* station = Chosen();
  told_->setText(station ? ChosenText(*station, workspace_.State.MapUnit()) : "No station chosen");
}

void StationList::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) stopAsked_ = true;
  QWidget::hideEvent(event);
}

bool StationList::eventFilter(QObject* watched, QEvent* event) {
  const bool asked = event->type() == QEvent::ShortcutOverride;
  if (!asked && event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (watched == table_)
    for (QAction* action : table_->actions()) {
      // Some are keys of the window too, where they mean the map.
      if (!IsKeyOf(key, *this, action->objectName().toUtf8().constData())) continue;
      asked ? event->accept() : action->trigger();
      return true;
    }
  const bool clears = watched == find_ && key.key() == Qt::Key_Escape && !find_->text().isEmpty();
  const bool leaves = watched == find_ && IsKeyOf(key, *this, "Stations");
  if (asked) {
    // The arrows move the map where no control wants them.
    const bool goes = key.key() >= Qt::Key_Home && key.key() <= Qt::Key_Down;
    if (clears || goes) event->accept();
    return clears || goes;
  }
  if (clears) find_->clear();
  if (leaves) FocusRows();
  return clears || leaves;
}

}  // namespace kestrel
