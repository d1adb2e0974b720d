#include "forms/frmGetHome.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/EntryHints.h"
#include "core/Numbers.h"
#include "core/Position.h"
#include "forms/frmPlotStates.h"
#include "ui/Controls.h"
#include "ui/PlacePicker.h"

namespace kestrel {

frmGetHome::frmGetHome(const Workspace& workspace, QWidget* parent) : QDialog(parent), workspace_(workspace) {
  setObjectName("frmGetHome");
  setWindowTitle("KestrelII - Get home");
  const SessionState& state = workspace_.State;

  auto* cities = new PlacePicker("lstCities", "txtFindCity", "Search: a city's first letters", state.CityList,
                                 CityColumns());
  auto* calls = new PlacePicker("lstCalls", "txtFindCall", "Search: first letters of a call or a place",
                                state.CallList, CallColumns());
  latitude_ = MakeBox("txtLatitude", "Degrees, north positive, -88 to 88");
  longitude_ = MakeBox("txtLongitude", "Degrees, west positive, 30 to 170; a sign is dropped");
  QLabel* latitudeHint = MakeLabel("lblHintLatitude", {});
  QLabel* longitudeHint = MakeLabel("lblHintLongitude", {});
  ShowCoordinates(FormatNumber(state.HomeLatitude), FormatNumber(state.HomeLongitude));
  connect(latitude_, &QLineEdit::textChanged, this,
          [this, latitudeHint] { ShowHint(latitude_, latitudeHint, LatitudeHint); });
  connect(longitude_, &QLineEdit::textChanged, this,
          [this, longitudeHint] { ShowHint(longitude_, longitudeHint, LongitudeHint); });

  QPushButton* accept = MakeButton("cmdExit", "&Accept and return", "Makes this place your home");
  QPushButton* old = MakeButton("cmdQuickExit", "&Use old values and return",
                                "Drops what was typed; a row that was taken stays");
  QPushButton* map = MakeButton("cmdGetMap", "Use &map", "Picks the place on a map of the states");
  accept->setDefault(true);
  const auto takeWith = [this, accept](const std::vector<std::string>& lines, auto cut) {
    return [this, accept, &lines, cut](int row) {
      Take(cut(lines[row]));
      accept->setFocus();
    };
  };
  cities->Taken = takeWith(state.CityList, TakeCity);
  calls->Taken = takeWith(state.CallList, CutCall);
  connect(accept, &QPushButton::clicked, this, [this] { TakeTyped(); });
  connect(old, &QPushButton::clicked, this, &QDialog::reject);
  connect(map, &QPushButton::clicked, this, [this] { UseMap(); });

  auto* lists = new QGridLayout;
  lists->addWidget(MakeLabel("Label1", "Select a &city:", cities->SearchBox()), 0, 0);
  lists->addWidget(MakeLabel("Label2", "&Select a call:", calls->SearchBox()), 0, 1);
  lists->addWidget(cities, 1, 0);
  lists->addWidget(calls, 1, 1);
  lists->setRowStretch(1, 1);

  auto* entry = new QGridLayout;
  entry->addWidget(MakeLabel("lblLatitude", "Home &latitude: ", latitude_), 0, 0);
  entry->addWidget(latitude_, 0, 1);
  entry->addWidget(MakeLabel("lblLongitude", "Home l&ongitude: ", longitude_), 0, 2);
  entry->addWidget(longitude_, 0, 3);
  QLabel* info = MakeLabel("lblInfo", "Entries are positive for North and for West.");
  info->setWordWrap(true);
  entry->addWidget(info, 0, 4);
  entry->addWidget(latitudeHint, 1, 0, 1, 2, Qt::AlignRight);
  entry->addWidget(longitudeHint, 1, 2, 1, 2, Qt::AlignRight);
  entry->setColumnStretch(4, 1);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(map);
  buttons->addStretch();
  buttons->addWidget(old);
  buttons->addWidget(accept);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(lists, 1);
  layout->addLayout(entry);
  layout->addLayout(buttons);
  resize(sizeHint().width(), fontMetrics().height() * 36);
  cities->SearchBox()->setFocus();
}

void frmGetHome::ShowCoordinates(const std::string& latitude, const std::string& longitude) {
  shownLatitude_ = QString::fromStdString(latitude);
  shownLongitude_ = QString::fromStdString(longitude);
  latitude_->setText(shownLatitude_);
  longitude_->setText(shownLongitude_);
}

void frmGetHome::ShowHint(QLineEdit* box, QLabel* label, std::string_view (*hint)(std::string_view)) {
  // An empty box is accepted as 0 like every other text without a number.
  const std::string typed = TypedNumber(*box);
  const std::string said(hint(typed.empty() ? " " : typed));
  label->setText(QString::fromStdString(said));
  MarkBox(box, !said.empty());
}

void frmGetHome::Take(const Place& place) {
  ShowCoordinates(place.LatitudeText, place.LongitudeText);
  const Position home = ReadHomePosition(place.LatitudeText, place.LongitudeText);
  workspace_.State.HomeLatitude = home.Latitude;
  workspace_.State.HomeLongitude = home.Longitude;
  workspace_.State.HomeName = takenName_ = place.Name;
}

void frmGetHome::TakeTyped() {
  // The boxes show rounded text: one that nobody changed is not read back.
  const Position typed = ReadHomePosition(TypedNumber(*latitude_), TypedNumber(*longitude_));
  const bool latitudeTyped = latitude_->text() != shownLatitude_;
  const bool longitudeTyped = longitude_->text() != shownLongitude_;
  if (latitudeTyped) workspace_.State.HomeLatitude = typed.Latitude;
  if (longitudeTyped) workspace_.State.HomeLongitude = typed.Longitude;
  if (latitudeTyped || longitudeTyped) workspace_.State.HomeName = takenName_;
  accept();
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
