#include "forms/frmGetDistance.h"

#include <QScrollBar>

#include "forms/FormFixture.h"

namespace kestrel {
namespace {

class DistanceTest : public FormTest {
 protected:
  void SetUp() override {
    State.CityList = {CityLine("Abilene  TX", "32.4487", "99.7331"),
                      CityLine("Chicago  IL", "41.8500", "-87.65")};
    State.HomeName = "Los Angeles  CA";
    State.HomeLatitude = 33.95F;
    State.HomeLongitude = 118.4F;
  }

  static void Enter(QWidget& form, const QString& latitude, const QString& longitude) {
    Type(form, "txtLatitude", latitude);
    Type(form, "txtLongitude", longitude);
    QTest::keyClick(Find<QLineEdit>(form, "txtLongitude"), Qt::Key_Return);
  }

  static std::string Answer(QWidget& form) {
    return Shown(form, "txtTargetBearing") + "|" + Shown(form, "txtTargetDistance");
  }
};

TEST_F(DistanceTest, TypedTargetsInBothUnits) {
  State.DistanceUnit = 1;
  frmGetDistance form(Everything);
  Use(form, [&] {
    EXPECT_TRUE(Find<QAbstractButton>(form, "Option11")->isChecked());
    EXPECT_FALSE(Find<QWidget>(form, "txtTargetDistance")->isVisible());
    Press(form, "cmdGetDistance");
    EXPECT_EQ(Answer(form), "|");
    EXPECT_EQ(State.DistanceUnit, 1);  // nothing typed, nothing done

    // Los Angeles to New York, the worked example of E. Williams, Aviation Formulary: 0.623585 radians on a
    // course of 1.150035. At 111.44 km a degree that is 3981.61 km, 2474.03 miles; 65.892 degrees.
    Enter(form, "40.633333", "73.783333");
    EXPECT_EQ(Answer(form), "65.8 deg|3981.6 km ");
    EXPECT_TRUE(Find<QWidget>(form, "txtTargetDistance")->isVisible());
    EXPECT_EQ(State.DistanceUnit, 0);
    Press(form, "Option12");
    EXPECT_EQ(State.DistanceUnit, 1);
    Enter(form, "40.633333", "-73.783333");  // west all the same
    EXPECT_EQ(Answer(form), "65.8 deg|2474 mi ");

    Enter(form, "north", "x");  // what is no number is 0
    const std::string atZero = Answer(form);
    Enter(form, "0", "0");
    EXPECT_EQ(Answer(form), atZero);
    Enter(form, "40.6 N", "73.8 E");  // no place for this window
    EXPECT_EQ(Answer(form), "|");
    EXPECT_EQ(form.focusWidget()->objectName(), "txtLongitude");
    Enter(form, "-95", "118,4");
    EXPECT_EQ(Shown(form, "lblHintLatitude") + Shown(form, "lblHintLongitude"),
              "Latitude beyond 90= 118.4 W");
    Press(form, "Option11");
    // 128.95 degrees of arc to the south, the last five of them beyond the pole.
    EXPECT_EQ(Answer(form), "180 deg|14370.1 km ");
    Press(form, "cmdExit");
  });
}

TEST_F(DistanceTest, ACityAndTheBoxesItFills) {
  frmGetDistance form(Everything);
  Use(form, [&] {
    Press(form, "Option12");  // with empty boxes only the unit changes
    EXPECT_EQ(State.DistanceUnit, 1);
    Press(form, "Option11");
    Enter(form, "34", "118");
    EXPECT_NE(Answer(form), "|");

    Type(form, "txtFindTarget", "chic");
    QTest::keyClick(Find<QLineEdit>(form, "txtFindTarget"), Qt::Key_Return);
    EXPECT_EQ(Shown(form, "txtLatitude") + " " + Shown(form, "txtLongitude"), "41.85 87.65");
    EXPECT_EQ(Answer(form), "|");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    // By the haversine formula: 25.3599 degrees of arc on a course of 62.777.
    EXPECT_EQ(Answer(form), "62.7 deg|2826.1 km ");
    Type(form, "txtFindTarget", "abi");
    Press(form, "cmdGetDistance");
    EXPECT_EQ(Shown(form, "txtLatitude"), "32.4487") << "the row that the search has led to";
    form.resize(300, form.height());
    EXPECT_GT(Find<QAbstractItemView>(form, "lstTarget")->horizontalScrollBar()->maximum(), 0);
    QTest::keyClick(&form, Qt::Key_Escape);
  });
}

TEST_F(DistanceTest, TheInstructionNamesHome) {
  const struct {
    const char* name;
    float latitude;
    const char* instruction;
  } rows[] = {
      {"  Plano   TX ", 33, "Get distance from Plano   TX to:"},
      {"Ely", 33, ""},
      {"", 33.24278F, "Get distance from 33.24278N, 118.4W to:"},
      {"", 0, "Get distance from home to:"},
  };
  for (const auto& row : rows) {
    State.HomeName = row.name;
    State.HomeLatitude = row.latitude;
    frmGetDistance form(Everything);
    EXPECT_EQ(Shown(form, "lblInstructions"), row.instruction);
  }
}

}  // namespace
}  // namespace kestrel
