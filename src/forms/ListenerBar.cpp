#include "forms/ListenerBar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <cmath>

#include "core/Numbers.h"
#include "ui/Controls.h"
#include "ui/FlowLayout.h"

namespace kestrel {
namespace {

QString GroundText(const char* name, double conductivity) {
  return QString("%1, %2 mS/m").arg(name, Text(NumberText(static_cast<float>(conductivity))));
}

QComboBox* MakeChoice(const char* name, const QString& tip) {
  auto* box = new QComboBox;
  box->setObjectName(name);
  box->setToolTip(tip);
  return box;
}

}  // namespace

QWidget* Named(const char* labelName, const QString& caption, QWidget* control) {
  auto* pair = new QWidget;
  auto* layout = new QHBoxLayout(pair);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(MakeLabel(labelName, caption, control));
  layout->addWidget(control, 1);
  return pair;
}

ListenerBar::ListenerBar(FlowLayout& bar, QObject* parent)
    : QObject(parent),
      ground_(MakeChoice("cmbGround", "How well the ground between carries the ground wave")),
      needed_(new QSpinBox),
      hours_(MakeChoice("cmbHours",
                        "How day and night are told at the stations: by the sun, by US licences, "
                        "or as the country has it")) {
  const ListenerChoices choices = LoadListenerChoices();
  for (const auto& [name, conductivity] :
       {std::pair("Poor", 1.0), std::pair("Average", AverageConductivity), std::pair("Good", 15.0),
        std::pair("Very good", 30.0), std::pair("Salt water", 5000.0)})
    ground_->addItem(GroundText(name, conductivity), conductivity);
  if (ground_->findData(choices.Ground) < 0)
    ground_->addItem(GroundText("Own", choices.Ground), choices.Ground);
  ground_->setCurrentIndex(ground_->findData(choices.Ground));

  needed_->setObjectName("spnNeeded");
  needed_->setToolTip("The field that you can hear, dB above 1 microvolt per metre");
  needed_->setRange(static_cast<int>(LowestNeededLevel), static_cast<int>(HighestNeededLevel));
  needed_->setSuffix(" dBu");
  needed_->setValue(static_cast<int>(std::lround(choices.NeededLevel)));

  for (const auto& [name, rule] :
       {std::pair("by country", HoursRule::Auto), std::pair("by sun", HoursRule::Sun),
        std::pair("by licence", HoursRule::Licence)})
    hours_->addItem(name, static_cast<int>(rule));
  hours_->setCurrentIndex(hours_->findData(static_cast<int>(choices.Rule)));

  bar.addWidget(Named("lblGround", "&Ground", ground_));
  bar.addWidget(Named("lblNeeded", "&Needed", needed_));
  bar.addWidget(Named("lblHours", "Da&y", hours_));
  connect(ground_, &QComboBox::currentIndexChanged, this, [this] { Keep(); });
  connect(needed_, &QSpinBox::valueChanged, this, [this] { Keep(); });
  connect(hours_, &QComboBox::currentIndexChanged, this, [this] { Keep(); });
}

ListenerChoices ListenerBar::Choices() const {
  return {ground_->currentData().toDouble(), static_cast<double>(needed_->value()),
          static_cast<HoursRule>(hours_->currentData().toInt())};
}

void ListenerBar::Keep() {
  SaveListenerChoices(Choices());
  if (Changed) Changed();
}

}  // namespace kestrel
