#include "map/StationTip.h"

#include <gtest/gtest.h>

#include "RecordingCanvas.h"
#include "TestFolder.h"
#include "map/DisplayList.h"
#include "map/MainMap.h"

namespace kestrel {
namespace {

const QByteArray kFile =
    "1230, QABC, SPRINGFIELD             , IL  , United States, D, 40, 80, 1,-,-, 1\n"
    "0,1,90,0,0,0\n"
    "1230, QABC, SPRINGFIELD             , IL  , United States, N, 40, 80, .25,-,-, 1\n"
    "0,1,90,0,0,0\n"
    "1230, QABC, OTHER SITE              , IL  , United States, C, 41, 80, 5,-,-, 0\n"
    "1230, QXYZ, LIMA                    , -   , Peru         , U,-12, 77, 10,-,-, 0\n";

SessionState HomeState() {
  SessionState state;
  state.CurrentFrequency = 1230;
  state.HomeLatitude = 40;
  state.HomeLongitude = 75;
  return state;
}

TEST(StationTipTest, TheNearestMarkWithinReachIsFound) {
  const std::vector<StationMark> marks = {
      {{1000, 1000}, 1230, "A", "D"}, {{1000, 1000}, 1230, "A", "N"}, {{1100, 1000}, 1240, "B", "U"}};
  const struct {
    Point mouse;
    const StationMark* found;
  } rows[] = {{{1000, 1000}, &marks[1]}, {{1049, 1000}, &marks[1]}, {{1051, 1000}, &marks[2]},
              {{1200, 1000}, &marks[2]}, {{1201, 1000}, nullptr},   {{1000, 1110}, nullptr},
              {{1071, 1071}, &marks[2]}};
  for (const auto& row : rows)
    EXPECT_EQ(NearestStation(marks, row.mouse, 100), row.found) << row.mouse.x << ' ' << row.mouse.y;
  EXPECT_EQ(NearestStation({}, {0, 0}, 1e9F), nullptr);
}

TEST(StationTipTest, SeveralStationsAreListedStrongestFirst) {
  TestFolder data;
  QByteArray file;
  for (int i = 0; i < 11; ++i)
    file += "1230, Q" + QByteArray::number(i) + ", TOWN, TX, United States, D, 40, 80, " +
            QByteArray::number(i + 1) + ",-,-, 0\n";
  data.Put("1230x.dat", file + "1230, Q0, TOWN, TX, United States, N, 40, 80, .5,-,-, 0\n");
  const SessionState state = HomeState();
  FixedMeasure measure;
  DisplayList drawing(measure);
  DrawMainMap(drawing, data.Folder(), state);
  const std::vector<StationMark>& marks = drawing.Stations();
  const std::string all = StationsTip(data.Folder(), state, marks);
  EXPECT_EQ(all.substr(0, all.find('\n')), "1230 kHz Q10  TOWN, TX: 11 kW daytime; 426.7 km, 271.6 deg");
  EXPECT_EQ(all.substr(all.rfind('\n')), "\nand 3 more");
  EXPECT_EQ(StationsTip(data.Folder(), state, {marks[0], marks[11], marks[1]}),
            "1230 kHz Q1  TOWN, TX: 2 kW daytime; 426.7 km, 271.6 deg\n"
            "1230 kHz Q0  TOWN, TX: 1 kW daytime, 500 watts nighttime; 426.7 km, 271.6 deg");
  EXPECT_EQ(StationsTip(data.Folder(), state, {marks[0], marks[11]}),
            *StationTip(data.Folder(), state, marks[0]));
  EXPECT_EQ(StationsTip(data.Folder(), state, {}), "");
}

TEST(StationTipTest, ATipTellsOfTheStationThatWasDrawn) {
  TestFolder data;
  data.Put("1230x.dat", kFile);
  data.Put("1240x.dat", "1240, QADJ, NEAR, PA, United States, U, 40, 76, 1,-,-, 0\n");
  SessionState state = HomeState();
  state.AdjacentsShown = 1;
  FixedMeasure measure;
  DisplayList drawing(measure);
  DrawMainMap(drawing, data.Folder(), state);
  ASSERT_EQ(drawing.Stations().size(), 5U);
  const auto tip = [&](std::size_t mark) {
    return StationTip(data.Folder(), state, drawing.Stations().at(mark)).value_or("nothing");
  };
  EXPECT_EQ(tip(0), "1230 kHz QABC  SPRINGFIELD, IL\n1 kW daytime, 250 watts nighttime\n426.7 km, 271.6 deg");
  EXPECT_EQ(tip(1), tip(0)) << "the marks of one site tell the same";
  EXPECT_EQ(tip(2).substr(0, 54), "1230 kHz QABC  OTHER SITE, IL\n5 kW critical hours\n438 ")
      << "a site of its own";
  EXPECT_EQ(tip(3).substr(0, 37), "1230 kHz QXYZ  LIMA\n10 kW unlimited\n5");
  EXPECT_EQ(tip(4).substr(0, 28), "1240 kHz QADJ  NEAR, PA\n1 kW");
  EXPECT_TRUE(OpensLookup(drawing.Stations()[0], state));
  EXPECT_FALSE(OpensLookup(drawing.Stations()[4], state)) << "another channel: the tip only";

  state.DistanceUnit = 1;
  EXPECT_NE(tip(0).find("265.1 mi, 271.6 deg"), std::string::npos) << tip(0);
  state.HoursFilter = HoursFilter::Night;
  EXPECT_NE(tip(1).find("\n250 watts nighttime\n"), std::string::npos) << "the day is not shown: " << tip(1);
  data.Put("1230x.dat", "");
  EXPECT_EQ(tip(0), "nothing") << "the file is read when the mouse rests";
}

}  // namespace
}  // namespace kestrel
