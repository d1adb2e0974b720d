#include "forms/frmGetHome.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/Numbers.h"
#include "core/Position.h"
#include "forms/frmPlotStates.h"
#include "ui/Controls.h"
#include "ui/PlacePicker.h"

namespace kestrel {

frmGetHome::frmGetHome(const Workspace& workspace, QWidget* parent)
    : Form(workspace, parent, "frmGetHome", "Get home"),
      grid_(new QGridLayout),
      entry_(*grid_, EntryOf::Home,
             {"lblLatitude",
              "Home &latitude: ", "Degrees, north positive, -88 to 88; as 42.35, 42.35N or 42 21 00 N"},
             {"lblLongitude", "Home l&ongitude: ",
              "Degrees, west positive, 30 to 170, a sign is dropped; as 71.05, 71.05W or 71 3 0 W"}) {
  const SessionState& state = workspace_.State;
  entry_.Show(Text(FormatNumber(state.HomeLatitude)), Text(FormatNumber(state.HomeLongitude)));
  QLabel* info = MakeLabel("lblInfo", "Entries are positive for North and for West.");
  info->setWordWrap(true);
  grid_->addWidget(info, 0, 4);
  grid_->setColumnStretch(4, 1);

  QPushButton* accept =
      MakeButton("cmdExit", "&Accept and return", "Makes this place your home", [this] { Accept(); });
  accept->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(
      MakeButton("cmdGetMap", "Use &map", "Picks the place on a map of the states", [this] { UseMap(); }));
  buttons->addStretch();
  buttons->addWidget(MakeButton("cmdQuickExit", "&Use old values and return",
                                "Drops what was typed; a row that was taken stays", [this] { reject(); }));
  buttons->addWidget(accept);

  auto* cities = new PlacePicker(*this, "lstCities", "txtFindCity", "Search: a city's first letters",
                                 state.CityList, CityColumns());
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(MakeLists(cities, accept), 1);
  layout->addLayout(grid_);
  layout->addLayout(buttons);
  resize(sizeHint().width(), fontMetrics().height() * 36);
  cities->SearchBox()->setFocus();
}

QGridLayout* frmGetHome::MakeLists(PlacePicker* cities, QWidget* nextFocus) {
  const SessionState& state = workspace_.State;
  auto* calls = new PlacePicker(*this, "lstCalls", "txtFindCall",
                                "Search: first letters of a call or a place", state.CallList, CallColumns());
  const auto use = [&](PlacePicker* picker, const std::vector<std::string>& lines, auto cut) {
    picker->Taken = [this, nextFocus, &lines, cut](int row) {
      Take(cut(lines[static_cast<std::size_t>(row)]));
      nextFocus->setFocus();
    };
    picker->Highlighted = [this, picker] { highlighted_ = picker; };
  };
  use(cities, state.CityList, TakeCity);
  use(calls, state.CallList, CutCall);

  auto* lists = new QGridLayout;
  lists->addWidget(MakeLabel("Label1", "Select a &city:", cities->SearchBox()), 0, 0);
  lists->addWidget(MakeLabel("Label2", "&Select a call:", calls->SearchBox()), 0, 1);
  lists->addWidget(cities, 1, 0);
  lists->addWidget(calls, 1, 1);
  lists->setRowStretch(1, 1);
  return lists;
}

void frmGetHome::Take(const Place& place) {
  highlighted_ = nullptr;
  entry_.Show(Text(place.LatitudeText), Text(place.LongitudeText));
  const Position home = ReadHomePosition(place.LatitudeText, place.LongitudeText);
  workspace_.State.HomeLatitude = home.Latitude;
  workspace_.State.HomeLongitude = home.Longitude;
  workspace_.State.HomeName = takenName_ = place.Name;
}

void frmGetHome::Accept() {
  if (entry_.Typed()) {
    const std::optional<Position> typed = entry_.Read();
    if (!typed) return entry_.FocusRefused();
    TakeTyped(*typed);
  } else if (highlighted_) {
    highlighted_->TakeHighlighted();
  }
  accept();
}

void frmGetHome::TakeTyped(const Position& typed) {
  // The boxes show rounded text: one that nobody changed is not read back.
  if (entry_.LatitudeTyped()) workspace_.State.HomeLatitude = typed.Latitude;
  if (entry_.LongitudeTyped()) workspace_.State.HomeLongitude = typed.Longitude;
  workspace_.State.HomeName = takenName_;
}

void frmGetHome::UseMap() {
  // Home has no name while the map is open, nor after a click on it.
  const std::string name = std::exchange(workspace_.State.HomeName, {});
  if (frmPlotStates(workspace_, this).exec() == QDialog::Accepted) {
    accept();
  } else {
    workspace_.State.HomeName = name;
  }
}

}  // namespace kestrel
