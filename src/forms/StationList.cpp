#include "forms/StationList.h"

#include <QAction>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "core/Text.h"
#include "forms/ListenerBar.h"
#include "forms/StationTable.h"
#include "forms/StationWords.h"
#include "ui/Controls.h"

// What the panel lists, and what is chosen in it; its controls and commands stand in a file of their own.

namespace kestrel {
namespace {

/// No more rows of the whole band are shown at once; who reads hundreds types another letter.
constexpr std::size_t kMostFound = 500;

}  // namespace

StationList::StationList(const Workspace& workspace, QWidget* parent)
    : QWidget(parent), workspace_(workspace) {
  setObjectName("StationList");
  setAccessibleName("Stations");
  order_ = new StationOrder(model_, this);
  table_ = new StationTable("Stations", *order_);
  LayOut();
  AddActions();
}

StationList::~StationList() {
  // It looks at the model, which is a member.
  delete table_;
  delete order_;
}

HoursRule StationList::Rule() const {
  return choices_->Choices().Rule;
}

RankingChoices StationList::Choices() const {
  const ListenerChoices choices = choices_->Choices();
  return {choices.NeededLevel, choices.Rule, struck_};
}

void StationList::Show(const std::vector<float>& channels, Moment moment) {
  frequencies_ = channels;
  moment_ = moment;
  RankedChannels read;
  read.Band = std::make_unique<BandRanking>(workspace_.Folder, channels, workspace_.State.Home(),
                                            choices_->Choices().Ground);
  read.Rank(moment_, Choices());
  // The rows show the former records until they are filled anew.
  const RankedChannels former = std::exchange(channels_, std::move(read));
  Fill();
  if (IsWholeBand()) PrepareBand();
  if (!Chosen()) chosen_.reset();
  if (RowChosen) RowChosen(Chosen());
}

void StationList::PrepareBand() {
  stopAsked_ = false;
  prepareAgain_ = preparing_;
  if (std::exchange(preparing_, true)) return;
  progress_->show();
  stop_->show();
  RankedChannels read;
  do {
    prepareAgain_ = false;
    read.Band =
        std::make_unique<BandRanking>(workspace_.Folder, workspace_.State.Home(), choices_->Choices().Ground,
                                      [this](std::size_t done, std::size_t all) {
                                        progress_->setMaximum(static_cast<int>(all));
                                        progress_->setValue(static_cast<int>(done));
                                        workspace_.System.ProcessEvents();
                                        return !stopAsked_ && !prepareAgain_;
                                      });
  } while (prepareAgain_ && !stopAsked_);
  preparing_ = false;
  progress_->hide();
  stop_->hide();
  if (read.Band->WasStopped()) return SetWholeBand(false);
  read.Rank(moment_, Choices());
  const RankedChannels former = std::exchange(band_, std::move(read));
  bandTexts_ = StationTexts(band_.Stations);
  Fill();
}

void StationList::Rerank(Moment moment) {
  moment_ = moment;
  channels_.Rank(moment, Choices());
  band_.Rank(moment, Choices());
  Refill();
}

std::vector<ListedStation> StationList::StationsWanted() {
  if (!IsWholeBand() || !band_.Band) return channels_.Stations;
  const std::vector<std::string> words = StationTexts::WordsOf(find_->text().toStdString());
  if (words.empty()) return StrongestOfEach(*band_.Band, band_.Rankings);
  std::vector<ListedStation> found;
  for (std::size_t i = 0; i < band_.Stations.size(); ++i)
    if (band_.Stations[i].Now != ListedStation::Standing::Hidden && bandTexts_.Matches(i, words))
      found.push_back(band_.Stations[i]);
  found_ = found.size();
  if (found_ <= kMostFound) return found;
  const auto end = found.begin() + kMostFound;
  std::nth_element(found.begin(), end, found.end(), [](const auto& a, const auto& b) {
    return a.Now != b.Now ? a.Now < b.Now : a.Levels.Total > b.Levels.Total;
  });
  found.erase(end, found.end());
  return found;
}

void StationList::Fill() {
  {
    const QScopedValueRollback quiet(quiet_, true);
    const bool band = IsWholeBand() && band_.Band;
    table_->SetManyChannels(band || frequencies_.size() > 1);
    model_.SetStations(StationsWanted(), workspace_.State.MapUnit());
    order_->SetFilter(band ? std::vector<std::string>{} : StationTexts::WordsOf(find_->text().toStdString()));
    if (chosen_) Reselect(*chosen_);
  }
  Tell();
}

void StationList::Refill() {
  const std::optional<Key> before = chosen_;
  {
    const QScopedValueRollback quiet(quiet_, true);
    std::vector<ListedStation> stations = StationsWanted();
    if (stations.size() == model_.Stations().size() &&
        (!IsWholeBand() || find_->text().trimmed().isEmpty())) {
      model_.SetMoment(std::move(stations));
      order_->Reorder();
    } else {
      model_.SetStations(std::move(stations), workspace_.State.MapUnit());
    }
    if (chosen_) Reselect(*chosen_);
  }
  Tell();
  const ListedStation* chosen = Chosen();
  if (chosen && (!before || before->Line != chosen->Record->Line || before->Frequency != chosen->Frequency))
    CurrentChanged();
}

const ListedStation* StationList::Chosen() const {
  const std::optional<int> row = table_->Chosen();
  return row ? &model_.At(*row) : nullptr;
}

bool StationList::Reselect(const Key& key) {
  int best = -1;
  const auto is = [&](int row, bool anyLine) {
    const ListedStation& station = model_.At(row);
    return station.Frequency == key.Frequency && station.Record->CallSign == key.CallSign &&
           (anyLine || station.Record->Line == key.Line) &&
           order_->mapFromSource(model_.index(row, 0)).isValid();
  };
  for (const bool anyLine : {false, true})
    for (int row = 0; row < model_.rowCount() && best < 0; ++row)
      if (is(row, anyLine)) best = row;
  if (best < 0) return false;
  if (table_->Chosen() != best) table_->Choose(best);
  chosen_ = Key{key.Frequency, key.CallSign, model_.At(best).Record->Line};
  return true;
}

void StationList::Choose(const StationMark& mark) {
  const ListedStation* station = StationOf(model_.Stations(), mark, workspace_.State);
  if (!station) return;
  const QScopedValueRollback quiet(quiet_, true);
  if (!Reselect({station->Frequency, station->Record->CallSign, station->Record->Line})) {
    find_->clear();  // the words that hide it
    Fill();
    Reselect({station->Frequency, station->Record->CallSign, station->Record->Line});
  }
  TellChosen();
}

void StationList::CurrentChanged() {
  if (quiet_) return;
  const ListedStation* station = Chosen();
  chosen_.reset();
  if (station) chosen_ = Key{station->Frequency, station->Record->CallSign, station->Record->Line};
  TellChosen();
  if (RowChosen) RowChosen(station);
}

bool StationList::IsWholeBand() const {
  return wholeBand_->isChecked();
}

void StationList::SetWholeBand(bool wholeBand) {
  wholeBand_->setChecked(wholeBand);
}

void StationList::BandTurned() {
  QHeaderView* header = table_->horizontalHeader();
  if (IsWholeBand()) {
    channelSort_ = {header->sortIndicatorSection(), header->sortIndicatorOrder()};
    if (find_->text().trimmed().isEmpty()) table_->Sort(StationListModel::Channel, Qt::AscendingOrder);
    return PrepareBand();
  }
  stopAsked_ = true;
  table_->Sort(channelSort_.first, channelSort_.second);
  Fill();
  band_ = {};
  bandTexts_ = {};
}

void StationList::Find(const QString& text) {
  if (!text.isEmpty()) {
    find_->setText(text);
    SetWholeBand(true);
  }
  find_->selectAll();
  find_->setFocus();
}

void StationList::FocusRows() {
  table_->setFocus();
  if (!Chosen() && order_->rowCount() > 0) table_->Choose(order_->ModelRow(order_->index(0, 0)));
}

void StationList::TakeFound() {
  if (order_->rowCount() == 0) return workspace_.System.Beep();
  const std::string typed = UpperCase(Trim(find_->text().toStdString()));
  const std::vector<int> rows = table_->SeenRows();
  // A call typed whole means that station, however weak it is.
  auto wanted = std::find_if(rows.begin(), rows.end(),
                             [&](int row) { return UpperCase(model_.At(row).Record->CallSign) == typed; });
  if (wanted == rows.end()) wanted = rows.begin();
  table_->Choose(*wanted);
  table_->setFocus();
  if (IsWholeBand()) Activate();
}

void StationList::Activate() {
  const ListedStation* station = Chosen();
  if (!station) return;
  const Key key = {station->Frequency, station->Record->CallSign, station->Record->Line};
  if (!IsWholeBand() && key.Frequency == workspace_.State.CurrentFrequency) {
    if (LookupAsked) LookupAsked(key.CallSign);
    return;
  }
  {
    const QScopedValueRollback quiet(quiet_, true);
    find_->clear();
    SetWholeBand(false);
  }
  chosen_ = key;
  if (ChannelAsked) ChannelAsked(key.Frequency);
  Choose(key.Frequency, key.CallSign);
  table_->setFocus();
}

void StationList::Choose(float frequency, const std::string& callSign) {
  const int line =
      chosen_ && chosen_->Frequency == frequency && chosen_->CallSign == callSign ? chosen_->Line : 0;
  {
    const QScopedValueRollback quiet(quiet_, true);
    if (!Reselect({frequency, callSign, line})) return;
  }
  TellChosen();
  if (RowChosen) RowChosen(Chosen());
}

QString StationList::Sentence() const {
  return SentenceOn(channels_.Stations, frequencies_, workspace_.State, moment_);
}

}  // namespace kestrel
