#include "forms/frmOpening.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "forms/SampleFolder.h"
#include "forms/StandInPlatform.h"

namespace kestrel {
namespace {

class frmOpeningTest : public ::testing::Test {
 protected:
  SampleFolder folder_;
  const DataFolder data_ = folder_.Folder();
  SessionState state_;
  StandInPlatform platform_;
  const Workspace workspace_{state_, data_, platform_};
};

TEST_F(frmOpeningTest, LoadsListsAndSessionAndLeadsOn) {
  folder_.Put("Kestrel.CFG", "Frequency: 1.23K\nHome: Here\nLat: 40\nLon: 75\n");
  frmOpening opening(workspace_);
  int starts = 0;
  opening.Started = [&] { ++starts; };
  opening.show();
  opening.Load();
  EXPECT_EQ(platform_.Messages, QStringList());
  EXPECT_EQ(state_.CityList.size(), 1U);
  EXPECT_EQ(state_.CallList.size(), 1U);
  EXPECT_EQ(state_.CurrentFrequency, 1230);
  EXPECT_EQ(opening.findChild<QLabel*>("lblVersion")->text(), "Version 3.06");
  EXPECT_EQ(opening.findChild<QLabel*>("lblStations")->text(), "Stations of a test");

  QTest::mouseClick(opening.findChild<QLabel*>("lblVersion"), Qt::LeftButton);
  EXPECT_EQ(platform_.Beeps, 1);
  EXPECT_EQ(starts, 0);
  QTest::keyClick(&opening, Qt::Key_Return);
  EXPECT_EQ(starts, 1);
  EXPECT_FALSE(opening.isVisible());
}

TEST_F(frmOpeningTest, EscapeAndExitLeaveWithoutStarting) {
  for (const bool byKey : {true, false}) {
    frmOpening opening(workspace_);
    opening.Started = [] { ADD_FAILURE() << "the map was opened"; };
    opening.show();
    opening.Load();
    if (byKey)
      QTest::keyClick(&opening, Qt::Key_Escape);
    else
      QTest::mouseClick(opening.findChild<QPushButton*>("cmdExit"), Qt::LeftButton);
    EXPECT_FALSE(opening.isVisible());
  }
}

TEST_F(frmOpeningTest, LoadsOnceShownUnlessItHasBeenLeft) {
  for (const char* button : {"cmdEnter", "cmdExit"}) {
    frmOpening opening(workspace_);
    int loads = 0;
    opening.FirstPainted = [&] { ++loads; };
    opening.show();
    opening.grab();  // paints it
    QTest::mouseClick(opening.findChild<QPushButton*>(button), Qt::LeftButton);
    EXPECT_EQ(loads, 0) << "painted first";
    QCoreApplication::processEvents();
    EXPECT_EQ(loads, button == std::string("cmdEnter") ? 1 : 0);
  }
}

TEST_F(frmOpeningTest, MissingListEndsLoadingButStartStillReadsTheSession) {
  folder_.Put("Kestrel.CFG", "Frequency: 1230\nHome: Here\nLat: 40\nLon: 75\n");
  for (const char* list : {"Kestrel.lst", "StationsCall.DAT"}) {
    SampleFolder fresh;
    fresh.Put("Kestrel.CFG", folder_.Text("Kestrel.CFG"));
    fresh.Remove(list);
    SessionState state;
    StandInPlatform platform;
    const DataFolder data = fresh.Folder();
    frmOpening opening({state, data, platform});
    opening.show();
    opening.Load();
    EXPECT_EQ(platform.Messages, QStringList("We have had a data-file reading error")) << list;
    EXPECT_TRUE(opening.isVisible());
    EXPECT_EQ(state.CurrentFrequency, 620) << "the session is not reached";
    opening.Started = [&] { EXPECT_EQ(state.CurrentFrequency, 1230); };
    QTest::mouseClick(opening.findChild<QPushButton*>("cmdEnter"), Qt::LeftButton);
    EXPECT_EQ(state.HomeName, "Here");
  }
}

TEST_F(frmOpeningTest, FullListLoadsAndOneMoreEntryIsAnError) {
  std::string lines;
  for (int i = 0; i < 3400; ++i) lines += "           Plano  TX                  33.0198   96.6989\r\n\r\n";
  folder_.Put("Kestrel.lst", lines);
  frmOpening full(workspace_);
  full.Load();
  EXPECT_EQ(state_.CityList.size(), 3400U);
  EXPECT_TRUE(platform_.Messages.isEmpty());
  folder_.Put("Kestrel.lst", lines + "one more\r\n");
  frmOpening overfull(workspace_);
  overfull.Load();
  EXPECT_EQ(platform_.Messages, QStringList("We have had a data-file reading error"));
}

}  // namespace
}  // namespace kestrel
