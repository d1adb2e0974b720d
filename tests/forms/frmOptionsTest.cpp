#include <array>
#include <cmath>

#include "draw/PainterCanvas.h"
#include "forms/FormFixture.h"
#include "forms/frmAspect.h"
#include "forms/frmOptions.h"

namespace kestrel {
namespace {

struct ColorRow {
  const char* Button;
  const char* Label;
  const char* Title;
  ColorValue SessionState::*Color;
};

constexpr std::array kColors = {
    ColorRow{"cmdDay", "lblDay", "Get Day pattern color", &SessionState::DayColor},
    ColorRow{"cmdNight", "lblNight", "Get Night pattern color", &SessionState::NightColor},
    ColorRow{"cmdUnlimited", "lblUnlimited", "Get Unlimited pattern color", &SessionState::UnlimitedColor},
    ColorRow{"cmdCritical", "lblCritical", "Get Critical pattern color", &SessionState::CriticalColor},
    ColorRow{"cmd1st", "lbl1st", "Get first adjacent pattern color", &SessionState::AdjacentColor},
};

class OptionsTest : public FormTest {
 protected:
  std::vector<ColorValue> Colors() const {
    std::vector<ColorValue> colors;
    for (const ColorRow& row : kColors) colors.push_back(State.*row.Color);
    return colors;
  }

  /// Whether every label, as it is painted, is written in its colour on white.
  void ExpectLabelsInTheirColors(QWidget& form) {
    for (const ColorRow& row : kColors) {
      const QImage image = Find<QLabel>(form, row.Label)->parentWidget()->grab().toImage();
      const QRgb ink = PlatformColor(State.*row.Color).rgb();
      const QRect text = Find<QLabel>(form, row.Label)->geometry();
      int inked = 0;
      int white = 0;
      for (int y = text.top(); y <= text.bottom(); ++y) {
        for (int x = text.left(); x <= text.right(); ++x) {
          inked += image.pixel(x, y) == ink;
          white += image.pixel(x, y) == qRgb(255, 255, 255);
        }
      }
      EXPECT_GT(inked, 20) << row.Label;
      EXPECT_GT(white, inked) << row.Label;
    }
  }
};

TEST_F(OptionsTest, EveryColorIsChosenAndCancelled) {
  frmOptions form(Everything);
  form.show();
  QString titleBefore;
  ColorValue next = 0x102030;
  for (const ColorRow& row : kColors) {
    const std::vector<ColorValue> before = Colors();
    System.NextColor.reset();
    Press(form, row.Button);
    EXPECT_EQ(Colors(), before) << row.Button;
    // The title is set behind a showing and stands over the next one.
    EXPECT_EQ(System.ColorQuestions.back().Title, titleBefore);

    System.NextColor = next;
    Press(form, row.Button);
    EXPECT_EQ(System.ColorQuestions.back().Title, row.Title);
    EXPECT_EQ(System.ColorQuestions.back().Current, before[&row - kColors.data()]);
    EXPECT_EQ(State.*row.Color, next);
    ExpectLabelsInTheirColors(form);
    titleBefore = row.Title;
    next += 0x111111;
  }
  EXPECT_EQ(Colors(), (std::vector<ColorValue>{0x102030, 0x213141, 0x324252, 0x435363, 0x546474}));
}

TEST_F(OptionsTest, UnsetColorsAndDefaults) {
  for (const ColorRow& row : kColors) State.*row.Color = 0;
  State.FurtherAdjacentColors = {0, 5, 0};
  frmOptions form(Everything);
  form.show();
  EXPECT_EQ(Colors(), (std::vector<ColorValue>{65280, 0, 255, 16776960, 16711680}));
  EXPECT_EQ(State.FurtherAdjacentColors, (std::array<ColorValue, 3>{16711680, 5, 16711680}));
  ExpectLabelsInTheirColors(form);

  Press(form, "optSpanish");
  Press(form, "cmdDefaults");
  EXPECT_EQ(Colors(), (std::vector<ColorValue>{65280, 986895, 255, 16776960, 33023}));
  ExpectLabelsInTheirColors(form);
  EXPECT_EQ(State.MapLanguage, "es");
}

TEST_F(OptionsTest, Languages) {
  const struct {
    const char* before;
    const char* selected;
    const char* after;
  } rows[] = {{"de", "optEnglish", "en"},
              {"", "optEnglish", "en"},
              {"FR", "optEnglish", "en"},
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

TEST_F(OptionsTest, AspectOpensWhenTheWindowHasClosed) {
  frmOptions form(Everything);
  bool opened = false;
  form.OpenAspect = [&] { opened = !form.isVisible(); };
  Use(form, [&] { Press(form, "cmdAspect"); });
  EXPECT_TRUE(opened);
}

TEST_F(OptionsTest, TenTimesWiderAndBack) {
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
  EXPECT_FALSE(form.isModal());
  EXPECT_EQ(Shown(form, "Label1"), "1");
  for (int press = 1; press <= 10; ++press) {
    Press(form, "cmdWide");
    EXPECT_EQ(drawnWith, State.AspectRatio);
  }
  EXPECT_NEAR(State.AspectRatio, 1.10462213, 1e-6);  // 1.01 to the tenth power
  EXPECT_EQ(Shown(form, "Label1").substr(0, 6), "1.1046");
  for (int press = 1; press <= 11; ++press) Press(form, "cmdNarrow");
  EXPECT_NEAR(State.AspectRatio, 1 / 1.01, 1e-6);
  EXPECT_EQ(Shown(form, "Label1").substr(0, 5), ".9900");
  EXPECT_EQ(channelDrawings, 21);
  EXPECT_EQ(mapDrawings, 0);

  Press(form, "cmdExit");
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(mapDrawings, 1);
  form.show();
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_EQ(mapDrawings, 2);
}

}  // namespace
}  // namespace kestrel
