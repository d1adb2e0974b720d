#include "forms/frmGetDistance.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/Distance.h"
#include "core/Numbers.h"
#include "data/PlaceLists.h"
#include "ui/Controls.h"
#include "ui/PlacePicker.h"

namespace kestrel {

frmGetDistance::frmGetDistance(const Workspace& workspace, QWidget* parent)
    : Form(workspace, parent, "frmGetDistance", "Get distance"),
      cities_(new PlacePicker(*this, "lstTarget", "txtFindTarget", "Search: a city's first letters",
                              workspace.State.CityList, WholeCityLines())),
      grid_(new QGridLayout),
      target_(*grid_, EntryOf::Target,
              {"lblTargetLatitude",
               "Target &latitude: ", "Degrees, north positive; as 42.35, 42.35N or 42 21 00 N"},
              {"lblTargetLongitude",
               "Target l&ongitude: ", "Degrees west, whatever the sign; as 71.05, 71.05W or 71 3 0 W"}),
      bearing_(AddAnswer(grid_, "lblTargetBearing", "txtTargetBearing", "Target bearing: ", 0)),
      distance_(AddAnswer(grid_, "lblTargetDistance", "txtTargetDistance", "Target distance: ", 2)) {
  grid_->addWidget(MakeUnits(), 0, 4, 3, 1, Qt::AlignTop);
  grid_->setColumnStretch(5, 1);
  grid_->setHorizontalSpacing(fontMetrics().height());

  QPushButton* compute = MakeButton("cmdGetDistance", "&Get distance", "Distance and bearing to the target",
                                    [this] { GetDistance(); });
  compute->setDefault(true);
  cities_->Taken = [this, compute](int row) {
    Take(workspace_.State.CityList[static_cast<std::size_t>(row)]);
    compute->setFocus();
  };
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(compute);
  buttons->addStretch();
  buttons->addWidget(MakeButton("cmdExit", "&Close", "Back to the map", [this] { accept(); }));

  const SessionState& state = workspace_.State;
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeLabel("lblInstructions", Text(DistanceInstruction(state.HomeName, state.Home()))));
  layout->addLayout(grid_);
  const QString mapUnit = state.MapUnit() == 1 ? "miles" : "kilometers";
  layout->addWidget(MakeLabel("lblMapUnit", "This window opens with kilometers; the unit of the maps (" +
                                                mapUnit + ") is chosen in the options."));
  layout->addWidget(MakeLabel("Label1", "&Select a city:", cities_->SearchBox()));
  layout->addWidget(cities_, 1);
  layout->addLayout(buttons);
  resize(sizeHint().width(), fontMetrics().height() * 34);
  target_.LatitudeBox()->setFocus();
}

frmGetDistance::Answer frmGetDistance::AddAnswer(QGridLayout* grid, const char* label, const char* box,
                                                 const QString& caption, int column) {
  Answer answer;
  answer.Box = MakeBox(box, {});
  answer.Box->setReadOnly(true);
  answer.Caption = MakeLabel(label, caption, answer.Box);
  grid->addWidget(answer.Caption, 2, column);
  grid->addWidget(answer.Box, 2, column + 1);
  for (QWidget* widget : {static_cast<QWidget*>(answer.Caption), static_cast<QWidget*>(answer.Box)}) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    widget->hide();
  }
  return answer;
}

void frmGetDistance::Answer::Show(const std::string& text) const {
  Box->setText(Text(text));
  Caption->show();
  Box->show();
}

void frmGetDistance::ShowDistanceTo(const Position& place) {
  target_.Show(Text(NumberText(place.Latitude)), Text(NumberText(place.Longitude)));
  Compute();
}

QWidget* frmGetDistance::MakeUnits() {
  auto* frame = new QGroupBox("Distance units");
  frame->setObjectName("Frame6");
  auto* layout = new QVBoxLayout(frame);
  const auto addUnit = [&](const char* name, const QString& caption, std::int16_t unit) {
    auto* option = new QRadioButton(caption);
    option->setObjectName(name);
    option->setChecked(unit == unit_);
    connect(option, &QRadioButton::clicked, this, [this, unit] { SetUnit(unit); });
    layout->addWidget(option);
  };
  addUnit("Option11", "&Kilometers", 0);
  addUnit("Option12", "&Miles", 1);
  return frame;
}

void frmGetDistance::Take(const std::string& cityLine) {
  const Place city = TakeCity(cityLine);
  target_.Show(Text(city.LatitudeText), Text(city.LongitudeText));
  ClearAnswers();
}

void frmGetDistance::SetUnit(std::int16_t unit) {
  workspace_.State.DistanceUnit = unit_ = unit;
  Compute();
}

void frmGetDistance::GetDistance() {
  if (!target_.Typed()) cities_->TakeHighlighted();
  if (!Compute()) target_.FocusRefused();
  // What has been asked once is no reason any more to pass over a row highlighted later.
  cities_->ForgetHighlighted();
  target_.CountAsShown();
}

bool frmGetDistance::Compute() {
  if (target_.IsEmpty()) return true;
  const std::optional<Position> target = target_.Read();
  if (!target) {
    ClearAnswers();
    return false;
  }
  SessionState& state = workspace_.State;
  state.DistanceUnit = unit_;
  const DistanceReadout readout = MeasureDistance(state.Home(), *target, unit_);
  bearing_.Show(readout.BearingText);
  distance_.Show(readout.DistanceText);
  return true;
}

void frmGetDistance::ClearAnswers() {
  bearing_.Box->clear();
  distance_.Box->clear();
}

}  // namespace kestrel
