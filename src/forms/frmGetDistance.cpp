#include "forms/frmGetDistance.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/Distance.h"
#include "core/EntryHints.h"
#include "core/Numbers.h"
#include "data/PlaceLists.h"
#include "ui/Controls.h"
#include "ui/PlacePicker.h"

namespace kestrel {
namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

frmGetDistance::frmGetDistance(const Workspace& workspace, QWidget* parent)
    : QDialog(parent), workspace_(workspace) {
  setObjectName("frmGetDistance");
  setWindowTitle("KestrelII - Get distance");
  const SessionState& state = workspace_.State;

  auto* grid = new QGridLayout;
  latitude_ = AddEntry(grid, "Latitude", "Target &latitude: ", "Degrees, north positive", 0);
  longitude_ = AddEntry(grid, "Longitude", "Target l&ongitude: ", "Degrees west, whatever the sign", 2);
  bearing_ = AddAnswer(grid, "TargetBearing", "Target bearing: ", 0);
  distance_ = AddAnswer(grid, "TargetDistance", "Target distance: ", 2);
  grid->addWidget(MakeUnits(), 0, 4, 3, 1, Qt::AlignTop);
  grid->setColumnStretch(5, 1);
  grid->setHorizontalSpacing(fontMetrics().height());

  auto* cities = new PlacePicker("lstTarget", "txtFindTarget", "Search: a city's first letters",
                                 state.CityList, WholeCityLines());
  QPushButton* compute = MakeButton("cmdGetDistance", "&Get distance", "Distance and bearing to the target");
  QPushButton* exit = MakeButton("cmdExit", "&Close", "Back to the map");
  compute->setDefault(true);
  cities->Taken = [this, compute](int row) {
    Take(workspace_.State.CityList[row]);
    compute->setFocus();
  };
  connect(compute, &QPushButton::clicked, this, [this] { Compute(); });
  connect(exit, &QPushButton::clicked, this, &QDialog::accept);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(compute);
  buttons->addStretch();
  buttons->addWidget(exit);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeLabel("lblInstructions", Text(DistanceInstruction(state.HomeName, state.Home()))));
  layout->addLayout(grid);
  layout->addWidget(MakeLabel("Label1", "&Select a city:", cities->SearchBox()));
  layout->addWidget(cities, 1);
  layout->addLayout(buttons);
  resize(sizeHint().width(), fontMetrics().height() * 34);
  latitude_.Box->setFocus();
}

frmGetDistance::Entry frmGetDistance::AddEntry(QGridLayout* grid, const char* name, const QString& caption,
                                               const QString& tip, int column) {
  const QByteArray box = QByteArray("txt") + name;
  const QByteArray label = QByteArray("lblTarget") + name;
  const QByteArray hint = QByteArray("lblHint") + name;
  Entry entry;
  entry.Box = MakeBox(box, tip);
  entry.Caption = MakeLabel(label, caption, entry.Box);
  entry.Hint = MakeLabel(hint, {});
  grid->addWidget(entry.Caption, 0, column);
  grid->addWidget(entry.Box, 0, column + 1);
  grid->addWidget(entry.Hint, 1, column + 1);
  return entry;
}

frmGetDistance::Entry frmGetDistance::AddAnswer(QGridLayout* grid, const char* name, const QString& caption,
                                                int column) {
  const QByteArray box = QByteArray("txt") + name;
  const QByteArray label = QByteArray("lbl") + name;
  Entry entry;
  entry.Box = MakeBox(box, {});
  entry.Box->setReadOnly(true);
  entry.Caption = MakeLabel(label, caption, entry.Box);
  grid->addWidget(entry.Caption, 2, column);
  grid->addWidget(entry.Box, 2, column + 1);
  for (QWidget* widget : {static_cast<QWidget*>(entry.Caption), static_cast<QWidget*>(entry.Box)}) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    widget->hide();
  }
  return entry;
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
  latitude_.Box->setText(Text(city.LatitudeText));
  longitude_.Box->setText(Text(city.LongitudeText));
  bearing_.Box->clear();
  distance_.Box->clear();
}

void frmGetDistance::SetUnit(std::int16_t unit) {
  workspace_.State.DistanceUnit = unit_ = unit;
  Compute();
}

void frmGetDistance::Compute() {
  const std::string latitude = TypedNumber(*latitude_.Box);
  const std::string longitude = TypedNumber(*longitude_.Box);
  const auto mark = [](const Entry& entry, std::string_view hint) {
    entry.Hint->setText(Text(hint));
    MarkBox(entry.Box, !hint.empty());
  };
  mark(latitude_, LatitudeHint(latitude));
  mark(longitude_, LongitudeHint(longitude));
  if (latitude.empty() || longitude.empty()) return;

  SessionState& state = workspace_.State;
  state.DistanceUnit = unit_;
  const DistanceReadout readout =
      MeasureDistance(state.Home(), TypedTarget(ParseNumber(latitude), ParseNumber(longitude)), unit_);
  bearing_.Box->setText(Text(readout.BearingText));
  distance_.Box->setText(Text(readout.DistanceText));
  for (const Entry& answer : {bearing_, distance_}) {
    answer.Caption->show();
    answer.Box->show();
  }
}

}  // namespace kestrel
