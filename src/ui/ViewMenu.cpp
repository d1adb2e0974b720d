#include "ui/ViewMenu.h"

#include <QActionGroup>
#include <QSettings>
#include <array>

#include "ui/Controls.h"
#include "ui/Keys.h"

namespace kestrel {
namespace {

struct Switch {
  const char* Name;
  const char* Caption;
  bool AtFirst;
};

constexpr std::array kSwitches = {
    Switch{"actLegend", "Le&gend", true},      Switch{"actRings", "&Rings of distance", false},
    Switch{"actScaleBar", "&Scale bar", true}, Switch{"actHourLines", "&Hours by broken lines", false},
    Switch{"actTime", "&Time", false},         Switch{"actList", "&List of stations", false},
};

const char* const kLabels = "actLabels";
constexpr std::array kLabelChoices = {std::pair(LabelChoice::Fitting, "Labels that &fit"),
                                      std::pair(LabelChoice::All, "&All labels"),
                                      std::pair(LabelChoice::None, "&No labels")};

QString SettingOf(const QString& name) {
  return "frmPlot/view/" + name;
}

}  // namespace

ViewMenu::ViewMenu(QWidget& window) : QMenu(&window), window_(window), labels_(new QActionGroup(this)) {
  setObjectName("mnuView");
  setToolTipsVisible(true);
  AddLabels();
  for (const Switch& row : kSwitches) {
    QAction* action = Add(row.Name, row.Caption);
    TakeKeys(window, *action);
    action->setCheckable(true);
    action->setChecked(QSettings().value(SettingOf(row.Name), row.AtFirst).toBool());
    connect(action, &QAction::toggled, this, [this, name = QString(row.Name)](bool on) {
      QSettings().setValue(SettingOf(name), on);
      if (Turned) Turned(name);
    });
  }
  addSeparator();
}

QAction* ViewMenu::Add(const char* name, const QString& caption) {
  QAction* action = addAction(caption);
  action->setObjectName(name);
  window_.addAction(action);
  return action;
}

QAction* ViewMenu::AddCommand(const char* name, const QString& caption, std::function<void()> run) {
  QAction* action = Add(name, caption);
  TakeKeys(window_, *action);
  connect(action, &QAction::triggered, this, std::move(run));
  return action;
}

void ViewMenu::AddLabels() {
  labels_->setObjectName(kLabels);
  for (const auto& [choice, caption] : kLabelChoices) {
    const std::string word(LabelChoiceWord(choice));
    QAction* action = Add((kLabels + word).c_str(), caption);
    action->setCheckable(true);
    action->setToolTip(KeysOf(window_, kLabels).Tip());
    labels_->addAction(action);
    connect(action, &QAction::triggered, this, [this, choice = choice] {
      QSettings().setValue(SettingOf(kLabels), Text(LabelChoiceWord(choice)));
      ChooseLabels(choice);
      if (Turned) Turned(kLabels);
    });
  }
  addSeparator();
  ChooseLabels(LabelChoiceOf(QSettings().value(SettingOf(kLabels)).toString().toStdString()));
}

void ViewMenu::ChooseLabels(LabelChoice choice) {
  const QList<QAction*> actions = labels_->actions();
  for (qsizetype i = 0; i < actions.size(); ++i) {
    const bool chosen = kLabelChoices[static_cast<std::size_t>(i)].first == choice;
    actions[i]->setShortcut({});
    if (!chosen) continue;
    actions[i]->setChecked(true);
    // The key goes from choice to choice, and stands beside the one that it leads to.
    const qsizetype next = (i + 1) % actions.size();
    for (qsizetype k = 0; k < actions.size(); ++k)
      actions[k]->setShortcuts(k == next ? KeysOf(window_, kLabels).Sequences() : QList<QKeySequence>());
    break;
  }
}

bool ViewMenu::IsOn(const char* name) const {
  const QAction* action = findChild<QAction*>(name);
  return action && action->isChecked();
}

MapLook ViewMenu::Look() const {
  MapLook look;
  const qsizetype labels = labels_->actions().indexOf(labels_->checkedAction());
  if (labels >= 0) look.Labels = kLabelChoices[static_cast<std::size_t>(labels)].first;
  look.Legend = IsOn("actLegend");
  look.Rings = IsOn("actRings");
  look.ScaleBar = IsOn("actScaleBar");
  look.HourLines = IsOn("actHourLines");
  return look;
}

}  // namespace kestrel
