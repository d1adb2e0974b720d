#include "forms/frmOpening.h"

#include "forms/FormFixture.h"

namespace kestrel {
namespace {

using frmOpeningTest = FormTest;

TEST_F(frmOpeningTest, LoadsListsAndSessionAndLeadsOn) {
  Files.Put("Kestrel.CFG", "Frequency: 1.23K\nHome: Here\nLat: 40\nLon: 75\n");
  frmOpening opening(Everything);
  int starts = 0;
  opening.Started = [&] { ++starts; };
  opening.show();
  opening.Load();
  EXPECT_EQ(System.Messages, QStringList());
  EXPECT_EQ(State.CityList.size(), 1U);
  EXPECT_EQ(State.CallList.size(), 1U);
  EXPECT_EQ(State.CurrentFrequency, 1230);
  EXPECT_EQ(Shown(opening, "lblStations"), "Stations of a test");

  QTest::mouseClick(Find<QLabel>(opening, "lblVersion"), Qt::LeftButton);
  EXPECT_EQ(System.Beeps, 1);
  EXPECT_EQ(starts, 0);
  QTest::keyClick(&opening, Qt::Key_Return);
  EXPECT_EQ(starts, 1);
  EXPECT_FALSE(opening.isVisible());
}

TEST_F(frmOpeningTest, ALongLineOfTheStationsIsWrappedAndThenShortenedInSight) {
  const QByteArray line = QByteArray("made of many files ").repeated(30).trimmed();
  Files.Put("Stations.txt", line);
  frmOpening opening(Everything);
  opening.show();
  auto* label = Find<QLabel>(opening, "lblStations");
  EXPECT_TRUE(label->text().endsWith(QChar(0x2026)));
  EXPECT_GT(label->text().size(), 100);
  EXPECT_EQ(label->toolTip().toUtf8(), line);
}

TEST_F(frmOpeningTest, LoadsOnceShownUnlessItHasBeenLeft) {
  for (const std::string way : {"cmdEnter", "cmdExit", "Escape"}) {
    frmOpening opening(Everything);
    int loads = 0;
    int starts = 0;
    opening.FirstPainted = [&] { ++loads; };
    opening.Started = [&] { ++starts; };
    opening.show();
    opening.grab();  // paints it
    if (way == "Escape")
      QTest::keyClick(&opening, Qt::Key_Escape);
    else
      Press(opening, way.c_str());
    EXPECT_FALSE(opening.isVisible()) << way;
    EXPECT_EQ(loads, 0) << "painted first";
    QCoreApplication::processEvents();
    EXPECT_EQ(loads, way == "cmdEnter" ? 1 : 0) << way;
    EXPECT_EQ(starts, loads) << way;
  }
}

TEST_F(frmOpeningTest, AListThatCannotBeReadEndsLoadingButStartStillReadsTheSession) {
  Files.Put("Kestrel.CFG", "Frequency: 1230\nHome: Here\nLat: 40\nLon: 75\n");
  Files.Put("StationsCall.DAT", QByteArray("too many\n").repeated(9001));
  for (const bool folder : {false, true}) {
    if (folder) {
      Files.Remove("Kestrel.lst");
      ASSERT_TRUE(QDir(Files.Path()).mkdir("Kestrel.lst"));
    }
    State = {};
    frmOpening opening(Everything);
    opening.show();
    opening.Load();
    EXPECT_EQ(System.Messages.size(), folder ? 2 : 1);
    EXPECT_EQ(System.Messages.last(), "We have had a data-file reading error");
    EXPECT_TRUE(opening.isVisible());
    EXPECT_EQ(State.CurrentFrequency, 620) << "the session is not reached";
    opening.Started = [&] { EXPECT_EQ(State.CurrentFrequency, 1230); };
    Press(opening, "cmdEnter");
    EXPECT_EQ(State.HomeName, "Here");
  }
}

}  // namespace
}  // namespace kestrel
