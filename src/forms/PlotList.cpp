#include "forms/PlotList.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "forms/ChosenOnMap.h"
#include "forms/ListedStations.h"
#include "forms/ListenerChoices.h"
#include "forms/StationList.h"
#include "forms/StationWords.h"
#include "ui/Controls.h"
#include "ui/MapSurface.h"
#include "ui/SideSplitter.h"
#include "ui/ViewMenu.h"

namespace kestrel {
namespace {

/// What is on some channels, for who asks without a list.
RankedChannels OnTheAir(const Workspace& workspace, const std::vector<float>& channels, Moment moment) {
  const ListenerChoices choices = LoadListenerChoices();
  RankedChannels ranked;
  ranked.Band =
      std::make_unique<BandRanking>(workspace.Folder, channels, workspace.State.Home(), choices.Ground);
  ranked.Rank(moment, {choices.NeededLevel, choices.Rule, {}});
  return ranked;
}

}  // namespace

PlotList::PlotList(const Workspace& workspace, MapSurface& map, ViewMenu& menu, QWidget& window)
    : QObject(&window),
      MomentShown(Now),
      workspace_(workspace),
      map_(map),
      area_(new SideSplitter(&map, "list", &window)),
      panel_(new QWidget),
      minute_(new QTimer(this)) {
  panel_->hide();
  area_->SetPanel(panel_);
  map_.setFocusPolicy(Qt::ClickFocus);
  map_.Overlay = [this](QPainter& painter) {
    if (chosen_ && IsOpen()) PaintChosen(painter, map_, workspace_.State, *chosen_);
  };
  connect(minute_, &QTimer::timeout, this, [this] { Rerank(); });
  AddCommands(menu);
}

void PlotList::MakeList() {
  list_ = new StationList(workspace_, panel_);
  auto* layout = new QVBoxLayout(panel_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(list_);
  list_->RowChosen = [this](const ListedStation* station) {
    chosen_.reset();
    if (station) chosen_ = station->Record->At;
    map_.update();
    TellChanged();
  };
  list_->LookupAsked = [this](const std::string& call) { LookupAsked(call); };
  list_->ChannelAsked = [this](float frequency) { ChannelAsked(frequency); };
  list_->ChoicesChanged = [this] { TellChanged(); };
}

void PlotList::TellChanged() {
  if (Changed) Changed();
}

void PlotList::AddCommands(ViewMenu& menu) {
  open_ = menu.findChild<QAction*>("actList");
  commands_ = {menu.AddCommand("actBand", "&Whole band", [this] { TurnBand(); }),
               menu.AddCommand("actFind", "&Find a station", [this] {
                 open_->setChecked(true);
                 list_->Find();
               })};
  menu.AddCommand("actSay", "&Say what is on", [this] { Say(); });
}

QWidget& PlotList::Area() {
  return *area_;
}

QWidget& PlotList::Panel() {
  return *panel_;
}

void PlotList::FocusRows() {
  if (list_) list_->FocusRows();
}

HoursRule PlotList::Rule() const {
  return list_ ? list_->Rule() : LoadListenerChoices().Rule;
}

std::optional<Position> PlotList::ChosenPlace() const {
  return IsOpen() ? chosen_ : std::nullopt;
}

bool PlotList::IsOpen() const {
  return !panel_->isHidden();
}

void PlotList::SetOpen(bool open) {
  constexpr int kMinute = 60'000;  // milliseconds
  const bool hadFocus = panel_->isAncestorOf(QApplication::focusWidget());
  if (open && !list_) MakeList();
  panel_->setVisible(open);
  if (open) {
    minute_->start(kMinute);
    if (!channels_.empty()) list_->Show(channels_, MomentShown());
  } else {
    minute_->stop();
    if (hadFocus) map_.setFocus();
  }
  map_.update();
  TellChanged();
}

void PlotList::MapDrawn(MapGround ground) {
  if (ground == MapGround::Empty) channels_.clear();
  for (const float channel : ShownChannels(workspace_.State))
    if (std::find(channels_.begin(), channels_.end(), channel) == channels_.end())
      channels_.push_back(channel);
  if (IsOpen()) list_->Show(channels_, MomentShown());
}

void PlotList::Rerank() {
  if (IsOpen()) list_->Rerank(MomentShown());
}

void PlotList::SetResting(bool resting) {
  panel_->setEnabled(!resting);
  for (QAction* command : commands_) command->setEnabled(!resting);
}

bool PlotList::TakeClick(const StationMark& mark) {
  if (!IsOpen()) return false;
  const ListedStation* before = list_->Chosen();
  const std::string call = before ? before->Record->CallSign : "";
  list_->Choose(mark);
  const ListedStation* station = list_->Chosen();
  if (!station || station->Record->CallSign != mark.CallSign || call == mark.CallSign) return false;
  list_->RowChosen(station);
  return true;
}

QString PlotList::FieldLine(const StationMark& mark) const {
  RankedChannels read;
  const auto isListed = [&mark](float channel) { return static_cast<int>(channel) == mark.Channel; };
  const bool listed = IsOpen() && std::any_of(channels_.begin(), channels_.end(), isListed);
  if (!listed) read = OnTheAir(workspace_, {static_cast<float>(mark.Channel)}, MomentShown());
  const ListedStation* station =
      StationOf(listed ? list_->Stations() : read.Stations, mark, workspace_.State);
  return station ? FieldText(*station) : QString();
}

QString PlotList::FieldLines(const std::vector<StationMark>& marks) const {
  constexpr std::size_t kMost = 3;
  std::vector<StationMark> stations;
  for (const StationMark& mark : marks)
    if (std::none_of(stations.begin(), stations.end(), [&](const StationMark& other) {
          return other.CallSign == mark.CallSign && other.Channel == mark.Channel;
        }))
      stations.push_back(mark);
  QString lines;
  for (std::size_t i = 0; i < std::min(kMost, stations.size()); ++i) {
    const QString line = FieldLine(stations[i]);
    const QString call = stations.size() > 1 ? Text(stations[i].CallSign) + ": " : QString();
    if (!line.isEmpty()) lines += '\n' + call + line;
  }
  return lines;
}

void PlotList::FindInBand(const QString& text) {
  open_->setChecked(true);
  list_->Find(text);
}

void PlotList::TurnBand() {
  const bool wasOpen = IsOpen();
  open_->setChecked(true);
  list_->SetWholeBand(!wasOpen || !list_->IsWholeBand());
  list_->FocusRows();
}

void PlotList::Say() {
  const QString sentence = IsOpen() ? list_->Sentence()
                                    : SentenceOn(OnTheAir(workspace_, channels_, MomentShown()).Stations,
                                                 channels_, workspace_.State, MomentShown());
  map_.setAccessibleDescription(sentence);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent event(&map_, sentence);
#else
  QAccessibleEvent event(&map_, QAccessible::Alert);
#endif
  QAccessible::updateAccessibility(&event);
}

}  // namespace kestrel
