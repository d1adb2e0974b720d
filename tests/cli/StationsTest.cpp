#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>
#include <cmath>

#include "cli/Companion.h"

namespace kestrel::cli {
namespace {

constexpr const char* kChannel =
    "1230, QWES, WEST \"END\"   , PA , United States, D, 40, 80, 0.25,-,-, 1\r\n"
    "0,1,90,0,0,0\r\n"
    "1230, QBAD, TOO MANY     , PA , United States, D, 40, 80, 1,-,-, 14\r\n"
    "0,1,90,0,0,0\r\n"
    "1230, QNOR, \xC1GUA\tFR\xCD"
    "A , -  , M\xE9xico, U, 40.67301, 75, 10,-,-, 0\r\n";

TEST(StationsTest, ListsRecordsInFileOrderWithExactNumbers) {
  const Folder folder;
  folder.Put("1230X.DAT", kChannel);
  const QStringList view = {"stations", "--frequency", "1230", "--home", "40,75", "--scale", "1000"};
  const std::string note = "kestrel-cli: 1230x.dat:3: 14 towers, at most 12\n";
  const Answer json{
      0,
      "[\n"
      "  {\"call\": \"QWES\", \"city\": \"WEST \\\"END\\\"\", \"state\": \"PA\", \"country\": \"United "
      "States\", \"hours\": \"D\", \"latitude\": 40, \"longitude\": 80, \"power_kw\": 0.25, \"towers\": 1, "
      "\"distance_km\": 426.78262, \"bearing_deg\": 271.60757, \"x\": 311.7866, \"y\": 4340.362},\n"
      "  {\"call\": \"QNOR\", \"city\": \"ÁGUA\\u0009FRÍA\", \"state\": \"-\", \"country\": \"México\", "
      "\"hours\": \"U\", \"latitude\": 40.67301, \"longitude\": 75, \"power_kw\": 10, \"towers\": 0, "
      "\"distance_km\": 74.98734, \"bearing_deg\": 0, \"x\": 6000, \"y\": 3499.9941}\n"
      "]\n",
      note};
  EXPECT_EQ(folder.Run(view + QStringList{"--json"}), json);
  const Answer table{0,
                     "Call  City        State  Country        Hours  Latitude  Longitude    kW  Towers     "
                     "km  Bearing      x       y\n"
                     "QWES  WEST \"END\"  PA     United States  D            40         80  0.25       1  "
                     "426.7    271.6  311.7  4340.3\n"
                     "QNOR  ÁGUA FRÍA   -      México         U      40.67301         75    10       0   "
                     "74.9        0   6000  3499.9\n",
                     note};
  EXPECT_EQ(folder.Run(view), table);
}

TEST(StationsTest, AMissingChannelIsStatusOne) {
  const Folder folder;
  const Answer missing{1, "",
                       "kestrel-cli: " + folder.Path("620x.dat").toStdString() +
                           ": there is no such file; choose another channel with --frequency or another "
                           "folder with --data\n"};
  EXPECT_EQ(folder.Run({"stations", "--frequency", "620"}), missing);
  EXPECT_EQ(folder.Run({"pattern", "--frequency", "620", "--call", "QAAA"}), missing);
  folder.Put("last.cfg", "5000\nx\n40\n75\n.5\n200\n0\n");
  EXPECT_EQ(folder.Run({"--session", folder.Path("last.cfg"), "stations"}),
            (Answer{1, "",
                    "kestrel-cli: the session's channel is 5000 kHz, and station files run from 530 to 1700; "
                    "choose one with --frequency\n"}));
}

TEST(StationsTest, AnEmptyChannelIsAnEmptyListAndAFullDiskStatusOne) {
  const Folder folder;
  folder.Put("620x.dat", "");
  EXPECT_EQ(folder.Run({"stations", "--json"}), (Answer{0, "[]\n", ""}));
  EXPECT_EQ(
      RunIn(folder.Path(), {"--data", ".", "stations"}, "/dev/full"),
      (Answer{1, "",
              "kestrel-cli: standard output does not take the whole answer; look for room on the disk\n"}));
}

class PatternTest : public testing::Test {
 protected:
  PatternTest() {
    folder_.Put("620x.dat",
                "620,QDIR ,Town,ST,Land,N,40,75,1,-,-,2\n"
                "0,1,90.5,0,0,0\n0,1,90.5,-90,90,0\n"
                "620,QONE,Town,ST,Land,U,40,75,10,-,-,1\n0,.5,90,0,0,0\n"
                "620,qdir,Town,ST,Land,D,40,75,1,-,-,2\n"
                "0,1,90,0,90,0\n 1,1,90,0,90,90\n"
                "620,QNIL,Town,ST,Land,C,40,75,1,-,-,1\n0,0,90,0,0,0\n");
  }

  QJsonArray Search(const QStringList& arguments) const {
    return folder_.Json(QStringList{"pattern"} + arguments).array();
  }

  Folder folder_;
};

TEST_F(PatternTest, HasOneEntryPerRecordAndTheTowersAsTheFileHoldsThem) {
  const QJsonArray records = Search({"--call", " qDir "});
  ASSERT_EQ(records.size(), 2);
  EXPECT_EQ(records[0]["hours"].toString(), "N");
  EXPECT_EQ(records[1]["hours"].toString(), "D");
  // The second tower stands 90 degrees east of the first; its own line stays as it is.
  const QJsonObject tower = records[1]["towers"][1].toObject();
  EXPECT_EQ(
      tower,
      (QJsonObject{
          {"switch", " 1"}, {"field", 1}, {"height", 90}, {"phase", 0}, {"spacing", 90}, {"bearing", 90}}));

  const QJsonArray cardioid = records[0]["values"].toArray();
  ASSERT_EQ(cardioid.size(), 361);
  EXPECT_NEAR(cardioid[0].toDouble(), 2 * std::sqrt(2.0), 1e-5);
  EXPECT_NEAR(cardioid[90].toDouble(), 2, 1e-5);
  EXPECT_NEAR(cardioid[180].toDouble(), 0, 1e-5);
  EXPECT_EQ(cardioid[360], cardioid[0]);
}

TEST_F(PatternTest, HoursChooseARecordAndOthersAreEmptyOrNull) {
  const QJsonArray single = Search({"--call", "QONE", "--hours", "U"});
  ASSERT_EQ(single.size(), 1);
  for (const QJsonValue value : single[0]["values"].toArray())
    EXPECT_NEAR(value.toDouble(), 2.02 * std::pow(10, .31622), 1e-5);
  EXPECT_EQ(Search({"--call", "QONE", "--hours", "D"}).size(), 0);
  EXPECT_EQ(folder_.Run({"pattern", "--call", "QXXX", "--json"}), (Answer{0, "[]\n", ""}));

  const Answer stopped = folder_.Run({"pattern", "--call", "QNIL", "--json"});
  EXPECT_EQ(stopped.Out,
            "[\n  {\"call\": \"QNIL\", \"hours\": \"C\", \"power_kw\": 1, \"towers\": [{\"switch\": \"0\", "
            "\"field\": 0, \"height\": 90, \"phase\": 0, \"spacing\": 0, \"bearing\": 0}], \"values\": "
            "null}\n]\n");
  const Answer table = folder_.Run({"pattern", "--call", "QNIL"});
  EXPECT_EQ(table.Out,
            "QNIL  C  1 kW\n\n"
            "Tower  Switch  Field  Height  Phase  Spacing  Bearing\n"
            "    1       0      0      90      0        0        0\n\n"
            "The pattern cannot be computed.\n");
}

}  // namespace
}  // namespace kestrel::cli
