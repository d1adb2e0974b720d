#include "forms/frmOptions.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>

#include "core/Options.h"
#include "draw/PainterCanvas.h"
#include "map/AboutPictures.h"
#include "ui/Controls.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

const QString kUnitSetting = "frmOptions/mapUnit";

}  // namespace

void LoadMapUnit(SessionState& state) {
  const QVariant unit = QSettings().value(kUnitSetting);
  if (unit.isValid()) state.ChosenMapUnit = unit.toInt() == 1 ? std::int16_t{1} : std::int16_t{0};
}

frmOptions::frmOptions(const Workspace& workspace, QWidget* parent)
    : Form(workspace, parent, "frmOptions", "Options") {
  SessionState& state = workspace_.State;
  FillUnsetOptions(state);

  auto* colors = new QGridLayout;
  colors->addWidget(MakeLabel("lblColors", "Plot colors"), 0, 0, 1, 3);
  AddColor(colors, state.DayColor, {"cmdDay", "&Day", "lblDay", "Daytime color", "Get Day pattern color"});
  AddColor(colors, state.NightColor,
           {"cmdNight", "&Night", "lblNight", "Nighttime color", "Get Night pattern color"});
  AddColor(colors, state.UnlimitedColor,
           {"cmdUnlimited", "&Unlimited", "lblUnlimited", "Unlimited color", "Get Unlimited pattern color"});
  AddColor(colors, state.CriticalColor,
           {"cmdCritical", "C&ritical", "lblCritical", "Critical-hours color", "Get Critical pattern color"});
  AddColor(colors, state.AdjacentColor,
           {"cmd1st", "Ad&jacents", "lbl1st", "First adjacent color", "Get first adjacent pattern color"});
  QPushButton* defaults = MakeButton("cmdDefaults", "D&efaults", "Sets all five colors back", [this] {
    SetDefaultColors(workspace_.State);
    ShowColors();
  });
  colors->addWidget(defaults, colors->rowCount(), 0);
  colors->setColumnStretch(1, 1);

  QPushButton* aspect =
      MakeButton("cmdAspect", "&Aspect",
                 "Makes patterns wider or narrower, for a screen that shows circles as ovals", [this] {
                   accept();
                   if (OpenAspect) OpenAspect();
                 });
  QPushButton* exit =
      MakeButton("cmdExit", "&Close", "Back to the map, which takes the new colors", [this] { accept(); });
  exit->setDefault(true);

  auto* side = new QVBoxLayout;
  side->addWidget(MakeLanguageFrame());
  side->addWidget(MakeUnitFrame());
  side->addStretch();
  side->addWidget(aspect);
  side->addWidget(exit);
  auto* layout = new QHBoxLayout(this);
  layout->addLayout(colors, 1);
  layout->addSpacing(fontMetrics().height());
  layout->addLayout(side);
  ShowColors();
  exit->setFocus();
}

void frmOptions::AddColor(QGridLayout* grid, ColorValue& color, const ColorNames& names) {
  QPushButton* button = MakeButton(names.Button, names.Caption, "Chooses the " + names.Text.toLower(),
                                   [this, &color, title = names.DialogTitle] { ChooseColor(color, title); });

  // On white, like the map.
  auto* paper = new QFrame;
  paper->setFrameShape(QFrame::Box);
  paper->setAutoFillBackground(true);
  paper->setPalette(QPalette(Qt::gray, Qt::white));
  QLabel* label = MakeLabel(names.Label, names.Text);
  ChangeFont(*label, QFont::Bold);
  auto* outline = new MapSurface(nullptr, SampleArea);
  outline->setAccessibleName("Sample");
  outline->setAccessibleDescription("A pattern in the " + names.Text.toLower());
  outline->setMinimumSize(1, 1);
  outline->setFixedSize(fontMetrics().height() * 8 / 3, fontMetrics().height() * 7 / 3);
  auto* row = new QHBoxLayout(paper);
  row->setContentsMargins(8, 1, 1, 1);
  row->addWidget(label, 1);
  row->addWidget(outline);

  const int line = grid->rowCount();
  grid->addWidget(button, line, 0);
  grid->addWidget(paper, line, 1, 1, 2);
  samples_.push_back({color, label, outline});
}

QWidget* frmOptions::MakeLanguageFrame() {
  const auto language = [this](const char* name, const QString& caption, const char* code) {
    std::string& chosen = workspace_.State.MapLanguage;
    return Choice{name, caption, chosen == code, [&chosen, code] { chosen = code; }};
  };
  return MakeFrame("frmLanguage", "lblLanguage", "Google Maps language",
                   {language("optEnglish", "En&glish", "en"), language("optFrench", "&French", "fr"),
                    language("optSpanish", "&Spanish", "es")});
}

QWidget* frmOptions::MakeUnitFrame() {
  const auto unit = [&state = workspace_.State](const char* name, const QString& caption,
                                                std::int16_t number) {
    return Choice{name, caption, state.MapUnit() == number, [&state, number] {
                    state.ChosenMapUnit = number;
                    QSettings().setValue(kUnitSetting, number);
                  }};
  };
  return MakeFrame("frmMapUnit", "lblMapUnit", "Distances on the maps",
                   {unit("optKilometers", "&Kilometers", 0), unit("optMiles", "&Miles", 1)});
}

QWidget* frmOptions::MakeFrame(const char* name, const char* label, const QString& heading,
                               const std::vector<Choice>& choices) {
  auto* frame = new QFrame;
  frame->setObjectName(name);
  frame->setAccessibleName(heading);
  frame->setFrameShape(QFrame::StyledPanel);
  auto* layout = new QVBoxLayout(frame);
  layout->addWidget(MakeLabel(label, "     " + heading));
  for (const Choice& choice : choices) {
    auto* option = new QRadioButton(choice.Caption);
    option->setObjectName(choice.Name);
    option->setChecked(choice.Chosen);
    connect(option, &QRadioButton::clicked, this, choice.Choose);
    layout->addWidget(option);
  }
  return frame;
}

void frmOptions::ChooseColor(ColorValue& color, const QString& title) {
  const std::optional<ColorValue> chosen = workspace_.System.ChooseColor(this, dialogTitle_, color);
  // The dialog is given its title after its showing, so it bears it from the next one on.
  dialogTitle_ = title;
  if (chosen) color = *chosen;
  ShowColors();
}

void frmOptions::ShowColors() {
  for (const Sample& sample : samples_) {
    QPalette palette = sample.Label->palette();
    palette.setColor(QPalette::WindowText, PlatformColor(sample.Color));
    sample.Label->setPalette(palette);
    sample.Outline->Drawing().Clear();
    DrawSampleOutline(sample.Outline->Drawing(), sample.Color);
    sample.Outline->ShowDrawing();
  }
}

}  // namespace kestrel
