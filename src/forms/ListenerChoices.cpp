#include "forms/ListenerChoices.h"

#include <QSettings>
#include <QString>

namespace kestrel {
namespace {

const QString kGround = "list/ground";
const QString kNeeded = "list/needed";
const QString kRule = "list/hours";

}  // namespace

ListenerChoices LoadListenerChoices() {
  const QSettings settings;
  ListenerChoices choices;
  const double ground = settings.value(kGround).toDouble();
  if (ground > 0 && ground <= HighestConductivity) choices.Ground = ground;
  bool isNumber = false;
  const double needed = settings.value(kNeeded).toDouble(&isNumber);
  if (isNumber && needed >= LowestNeededLevel && needed <= HighestNeededLevel) choices.NeededLevel = needed;
  choices.Rule =
      HoursRuleNamed(settings.value(kRule).toString().toStdString()).value_or(ListenerChoices().Rule);
  return choices;
}

void SaveListenerChoices(const ListenerChoices& choices) {
  QSettings settings;
  settings.setValue(kGround, choices.Ground);
  settings.setValue(kNeeded, choices.NeededLevel);
  settings.setValue(kRule, QString::fromStdString(std::string(NameOf(choices.Rule))));
}

}  // namespace kestrel
