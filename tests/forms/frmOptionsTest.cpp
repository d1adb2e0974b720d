#include "forms/frmOptions.h"

#include <QSettings>

#include "draw/PainterCanvas.h"
#include "forms/FormFixture.h"
#include "forms/frmAspect.h"
#include "forms/frmGetDistance.h"

namespace kestrel {
namespace {

struct ColorRow {
  const char* Button;
  const char* Label;
  ColorValue SessionState::*Color;
};

constexpr ColorRow kColors[] = {
    {"cmdDay", "lblDay", &SessionState::DayColor},
    {"cmdNight", "lblNight", &SessionState::NightColor},
    {"cmdUnlimited", "lblUnlimited", &SessionState::UnlimitedColor},
    {"cmdCritical", "lblCritical", &SessionState::CriticalColor},
    {"cmd1st", "lbl1st", &SessionState::AdjacentColor},
};

class OptionsTest : public FormTest {
 protected:
  /// The five colours, as the session holds them; every label shows its own.
  std::vector<ColorValue> Colors(QWidget& form) const {
    std::vector<ColorValue> colors;
    for (const ColorRow& row : kColors) {
      colors.push_back(State.*row.Color);
      EXPECT_EQ(Find<QLabel>(form, row.Label)->palette().color(QPalette::WindowText),
                PlatformColor(colors.back()))
          << row.Label;
    }
    return colors;
  }
};

TEST_F(OptionsTest, EveryColorIsChosenAndCancelled) {
  frmOptions form(Everything);
  form.show();
  QString titleBefore;
  std::vector<ColorValue> wanted = Colors(form);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    System.NextColor.reset();
    Press(form, kColors[i].Button);
    EXPECT_EQ(Colors(form), wanted) << kColors[i].Button;
    // The title is set after a showing and stands over the next one.
    EXPECT_EQ(System.ColorQuestions.back().Title, titleBefore);
    EXPECT_EQ(System.ColorQuestions.back().Current, wanted[i]);

    System.NextColor = wanted[i] = 0x102030 + static_cast<ColorValue>(i);
    Press(form, kColors[i].Button);
    EXPECT_EQ(Colors(form), wanted);
    EXPECT_NE(System.ColorQuestions.back().Title, titleBefore);
    titleBefore = System.ColorQuestions.back().Title;
  }
}

TEST_F(OptionsTest, UnsetColorsAndDefaults) {
  for (const ColorRow& row : kColors) State.*row.Color = 0;
  State.FurtherAdjacentColors = {0, 5, 0};
  frmOptions form(Everything);
  form.show();
  EXPECT_EQ(Colors(form), (std::vector<ColorValue>{65280, 0, 255, 16776960, 16711680}));
  EXPECT_EQ(State.FurtherAdjacentColors, (std::array<ColorValue, 3>{16711680, 5, 16711680}));
  Press(form, "optSpanish");
  Press(form, "cmdDefaults");
  EXPECT_EQ(Colors(form), (std::vector<ColorValue>{65280, 986895, 255, 16776960, 33023}));
  EXPECT_EQ(State.MapLanguage, "es");
}

TEST_F(OptionsTest, Languages) {
  const struct {
    const char *before, *selected, *after;
  } rows[] = {{"de", "optEnglish", "en"},
              {"", "optEnglish", "en"},
              {"fr", "optFrench", "fr"},
              {"es", "optSpanish", "es"}};
  for (const auto& row : rows) {
    State.MapLanguage = row.before;
    frmOptions form(Everything);
    EXPECT_EQ(State.MapLanguage, row.after) << row.before;
    EXPECT_TRUE(Find<QAbstractButton>(form, row.selected)->isChecked()) << row.before;
    Press(form, "optFrench");
    EXPECT_EQ(State.MapLanguage, "fr");
    Press(form, "optEnglish");
    EXPECT_EQ(State.MapLanguage, "en");
  }
}

TEST_F(OptionsTest, TheUnitOfTheMapsIsKeptAndTheDistanceWindowTellsIt) {
  State.DistanceUnit = 1;  // until one is chosen, the maps have what was used last
  frmOptions form(Everything);
  EXPECT_TRUE(Find<QAbstractButton>(form, "optMiles")->isChecked());
  Press(form, "optKilometers");
  EXPECT_EQ(State.MapUnit(), 0);
  Press(form, "optMiles");
  State = {};
  LoadMapUnit(State);
  EXPECT_EQ(State.MapUnit(), 1);
  EXPECT_EQ(State.DistanceUnit, 0) << "of the distance window alone";
  frmGetDistance distance(Everything);
  EXPECT_TRUE(Shown(distance, "lblMapUnit").ends_with("of the maps (miles) is chosen in the options."));
  QSettings().clear();
}

TEST_F(OptionsTest, AspectTenTimesWiderAndBack) {
  State.AspectRatio = 1;
  frmAspect form(Everything);
  int channelDrawings = 0;
  int mapDrawings = 0;
  float drawnWith = 0;
  form.RedrawChannel = [&] {
    ++channelDrawings;
    drawnWith = State.AspectRatio;
  };
  form.RedrawAll = [&] { ++mapDrawings; };
  form.show();
  EXPECT_EQ(Shown(form, "Label1"), "1");
  for (int press = 1; press <= 10; ++press) Press(form, "cmdWide");
  EXPECT_NEAR(State.AspectRatio, 1.10462213, 1e-6);  // 1.01 to the tenth power
  EXPECT_EQ(drawnWith, State.AspectRatio);
  EXPECT_EQ(Shown(form, "Label1").substr(0, 6), "1.1046");
  for (int press = 1; press <= 11; ++press) Press(form, "cmdNarrow");
  EXPECT_NEAR(State.AspectRatio, 1 / 1.01, 1e-6);
  EXPECT_EQ(drawnWith, State.AspectRatio);
  EXPECT_EQ(channelDrawings, 21);
  EXPECT_EQ(mapDrawings, 0);
  Press(form, "cmdExit");
  EXPECT_EQ(mapDrawings, 1);
  form.show();
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_EQ(mapDrawings, 2);
}

}  // namespace
}  // namespace kestrel
