#include "forms/frmGetHome.h"

#include "core/Numbers.h"
#include "forms/FormFixture.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

class HomeTest : public FormTest {
 protected:
  void SetUp() override {
    State.CityList = {CityLine("Abilene  TX", "32.4487", "99.7331"), CityLine("Alert  NU", "89.5", "-62.3"),
                      CityLine("Ponta Delgada  Azores", "37.7412", "25.6756"),
                      CityLine("Port of Spain  Trinidad", "10.6662", "61.5166")};
    State.CallList = {CallLine("QAAA", "Plano  TX", "33.0198", "96.6989"),
                      CallLine("QBBB", "Port Arthur  TX", "29.8850", "93.9399"),
                      CallLine("QPRT", "Abilene  KS", "-95.5", "175.25")};
  }

  std::string Home() const {
    return std::string(Trim(State.HomeName)) + " " + NumberText(State.HomeLatitude) + " " +
           NumberText(State.HomeLongitude);
  }

  /// Opens the states map from the form and works on it there.
  void OnMap(QWidget& form, const std::function<void(QDialog&, MapSurface&)>& use) {
    bool used = false;
    QTimer::singleShot(0, &form, [&] {
      auto* map = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(map && map->objectName() == "frmPlotStates");
      ASSERT_TRUE(QTest::qWaitForWindowExposed(map));
      use(*map, *Find<MapSurface>(*map, "Map"));
      used = true;
      if (map->isVisible()) map->reject();
    });
    Press(form, "cmdGetMap");
    EXPECT_TRUE(used);
  }
};

TEST_F(HomeTest, ARowTakenCountsAtOnceAndSurvivesLeaving) {
  frmGetHome form(Everything);
  EXPECT_EQ(Shown(form, "txtLatitude") + ' ' + Shown(form, "txtLongitude"), "33.243 96.541");
  Use(form, [&] {
    ClickRow(form, "lstCities", 0);
    EXPECT_EQ(State.HomeName, PadTo("Abilene  TX", 26));
    EXPECT_EQ(Shown(form, "txtLatitude"), "32.4487");
    EXPECT_EQ(Home(), "Abilene  TX 32.4487 99.7331");

    ClickRow(form, "lstCities", 1);  // beyond the limit in the north, the sign of the longitude dropped
    EXPECT_EQ(Shown(form, "txtLongitude"), "62.3");
    EXPECT_EQ(Home(), "Alert  NU 88 62.3");

    ClickRow(form, "lstCalls", 2);
    EXPECT_EQ(State.HomeName, PadTo("Abilene  KS", 25));
    EXPECT_EQ(Shown(form, "txtLatitude"), "-95.5");
    EXPECT_EQ(Home(), "Abilene  KS -88 170");

    ClickRow(form, "lstCalls", 0);
    Type(form, "txtLatitude", "12");
    Press(form, "cmdQuickExit");
  });
  EXPECT_EQ(Home(), "Plano  TX 33.0198 96.6989");
}

TEST_F(HomeTest, TypedCoordinatesCountAndWhatIsReadIsTold) {
  frmGetHome form(Everything);
  const std::string before = Home();
  const auto notes = [&] { return Shown(form, "lblHintLatitude") + "|" + Shown(form, "lblHintLongitude"); };
  const int result = Use(form, [&] {
    EXPECT_EQ(notes(), "|");
    Type(form, "txtLatitude", "42 21 N");
    Type(form, "txtLongitude", "71.05E");
    EXPECT_EQ(notes(), "= 42.35 N|East: longitudes are west here");
    Press(form, "cmdExit");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.focusWidget()->objectName(), "txtLongitude");
    EXPECT_EQ(Home(), before);
    Type(form, "txtLatitude", "-95");
    Find<QLineEdit>(form, "txtLongitude")->setText("-٩٦٫٥");
    EXPECT_EQ(notes(), "= 88 S, the limit|= 96.5 W");
    QTest::keyClick(Find<QLineEdit>(form, "txtLongitude"), Qt::Key_Return);
  });
  EXPECT_EQ(result, QDialog::Accepted);
  EXPECT_EQ(Home(), " -88 96.5") << "limited, without a sign, without a name";
}

TEST_F(HomeTest, WhatNobodyChangedStaysExact) {
  const SessionState before = State;
  // What a visit to the window leaves of the home.
  const auto visit = [this](const std::function<void(QDialog&)>& story) {
    frmGetHome form(Everything);
    Use(form, [&] { story(form); });
    return Home();
  };
  const std::string home = Home();
  EXPECT_EQ(visit([](QDialog& form) { Press(form, "cmdExit"); }), home);
  const auto escape = [](QDialog& form) {
    Type(form, "txtLatitude", "12");
    QTest::keyClick(&form, Qt::Key_Escape);
  };
  EXPECT_EQ(visit(escape), home);
  const auto oneBox = [](QDialog& form) {
    Type(form, "txtLatitude", "12");
    Press(form, "cmdExit");
  };
  EXPECT_EQ(visit(oneBox), " 12 " + NumberText(before.HomeLongitude)) << "not the 96.541 of its box";
  const auto corrected = [](QDialog& form) {
    ClickRow(form, "lstCities", 0);
    Type(form, "txtLatitude", "32.5");
    Press(form, "cmdExit");
  };
  EXPECT_EQ(visit(corrected), "Abilene  TX 32.5 99.7331");
}

TEST_F(HomeTest, SearchingMovesTheListAndEnterTakes) {
  frmGetHome form(Everything);
  const std::string before = Home();
  const auto current = [&](const char* list) {
    return Find<QAbstractItemView>(form, list)->currentIndex().row();
  };
  auto* city = Find<QLineEdit>(form, "txtFindCity");
  auto* call = Find<QLineEdit>(form, "txtFindCall");
  const QPalette unmarked = city->palette();
  Use(form, [&] {
    const std::pair<const char*, int> rows[] = {{"port", 3}, {"pon", 2}, {"port  of s", 3}, {"zz", -1}};
    for (const auto& [text, row] : rows) {
      Type(form, "txtFindCity", text);
      EXPECT_EQ(current("lstCities"), row) << text;
      EXPECT_EQ(city->palette() != unmarked, row < 0) << text;
      EXPECT_EQ(Home(), before);
    }
    QTest::keyClick(city, Qt::Key_Return);
    Type(form, "txtFindCity", "");
    EXPECT_EQ(city->palette(), unmarked);
    QTest::keyClick(city, Qt::Key_Return);
    Type(form, "txtFindCall", "abi");
    EXPECT_EQ(current("lstCalls"), 2) << "by its place";
    Type(form, "txtFindCall", "qbb");
    EXPECT_EQ(current("lstCalls"), 1);
    QTest::keyClick(call, Qt::Key_Up);
    EXPECT_EQ(current("lstCalls"), 0);
    QTest::keyClick(call, Qt::Key_PageDown);
    EXPECT_EQ(current("lstCalls"), 2);
    EXPECT_EQ(Home(), before);
    QTest::keyClick(call, Qt::Key_Return);
    EXPECT_EQ(Home(), "Abilene  KS -88 170");
    EXPECT_TRUE(form.isVisible());

    auto* list = Find<QAbstractItemView>(form, "lstCities");
    list->setFocus();
    QTest::keyClick(list, 'p');  // letters are looked for wherever they are typed
    QTest::keyClicks(QApplication::focusWidget(), "on");
    Press(form, "cmdExit");
  });
  EXPECT_EQ(Home(), "Ponta Delgada  Azores 37.7412 30") << "the row that the search has led to";
}

TEST_F(HomeTest, TheMapIsLeftWithOrWithoutAPoint) {
  frmGetHome form(Everything);
  const std::string before = Home();
  const int result = Use(form, [&] {
    OnMap(form, [&](QDialog& map, MapSurface& surface) {
      EXPECT_EQ(State.HomeName, "");
      QTest::mouseClick(&surface, Qt::MiddleButton);
      EXPECT_TRUE(map.isVisible());
      Press(map, "cmdExit");
    });
    EXPECT_EQ(Home(), before);
    EXPECT_TRUE(form.isVisible());

    OnMap(form, [&](QDialog& map, MapSurface& surface) {
      // Ten twips a pixel, so that a pixel's place on the sheet is exact.
      for (int round = 0; round < 3; ++round) {
        map.resize(map.size() + QSize(1440, 1000) - surface.size());
        QApplication::processEvents();
      }
      ASSERT_EQ(surface.size(), QSize(1440, 1000));
      QTest::mouseClick(&surface, Qt::RightButton, {}, QPoint(110, 50));
    });
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(result, QDialog::Accepted);
  EXPECT_EQ(State.HomeLatitude, 57.5F);  // x = 0, y = 0
  EXPECT_EQ(State.HomeLongitude, 133);
  EXPECT_EQ(State.HomeName, "");
}

}  // namespace
}  // namespace kestrel
