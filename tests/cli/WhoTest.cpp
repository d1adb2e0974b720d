#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

#include "cli/Companion.h"

namespace kestrel::cli {
namespace {

/// A local by day, an array by night and a distant station whose antenna is not known.
constexpr const char* kChannel =
    "1510, QLOC, NEAR TOWN , PA , United States, D, 40.5, 75, 5,-,-, 1\n"
    "0,1,90,0,0,0\n"
    "1510, QARR, \"ARRAY\" , NY , United States, N, 41.5, 76, 1,-,-, 2\n"
    "0,1,90,0,0,0\n0,1,90,-90,90,180\n"
    "1510, QFAR, FAR , TN , United States, U, 36, 86.8, 50,-,-, 0\n";

class WhoTest : public testing::Test {
 protected:
  WhoTest() { folder_.Put("1510x.dat", kChannel); }

  const QStringList question_ = {"who", "--frequency", "1510", "--home", "40,75"};
  Folder folder_;
};

TEST_F(WhoTest, ListsThoseOnTheAirAndBelowThemTheSilentOnes) {
  const Answer night = folder_.Run(question_ + QStringList{"--time", "2026-11-22T05:00Z"});
  EXPECT_EQ(
      night,
      (Answer{0,
              "1510 kHz, 2026-11-22T05:00Z, ground 5 mS/m; 2 on the air\n"
              "\n"
              "Call  City     State  Hours  kW    km  Bearing  dBu  Chance  Reason\n"
              "QARR  \"ARRAY\"  NY     N       1   187      334   50  likely  sky wave\n"
              "QFAR  FAR      TN     U      50  1127      250   49  likely  sky wave, pattern not known\n"
              "\n"
              "Silent  City       State  Reason\n"
              "QLOC    NEAR TOWN  PA     day only\n",
              ""}));
  const Answer struck = folder_.Run(question_ + QStringList{"--time", "2026-11-22T18:00Z", "--strike", "qloc",
                                                            "--strike", "QNOT", "--need", "0"});
  EXPECT_EQ(struck.Status, 0);
  EXPECT_EQ(struck.Err, "kestrel-cli: --strike QNOT: no station of 1510 kHz has this call\n");
  EXPECT_NE(struck.Out.find("struck"), std::string::npos) << struck.Out;
}

TEST_F(WhoTest, JsonHasEveryNumber) {
  const QJsonObject who =
      folder_
          .Json(question_ + QStringList{"--time", "2026-11-22T05:00:30Z", "--ground", "8", "--hours", "sun"})
          .object();
  EXPECT_EQ(who["frequency"], 1510);
  EXPECT_EQ(who["utc"], "2026-11-22T05:00:30Z");
  EXPECT_EQ(who["sigma_ms"], 8);
  EXPECT_EQ(who["rule"], "sun");
  ASSERT_EQ(who["rows"].toArray().size(), 2);
  const QJsonObject row = who["rows"].toArray()[0].toObject();
  EXPECT_EQ(row.keys(), (QStringList{"azimuth_deg",    "bearing_deg",   "call",           "city",
                                     "country",        "distance_km",   "e_ground_mv",    "e_theta_mv",
                                     "groundwave_dbu", "high_dbu",      "hourly_loss_db", "hours",
                                     "line",           "pattern_known", "phi_deg",        "power_kw",
                                     "reason",         "skywave10_dbu", "skywave50_dbu",  "state",
                                     "theta_deg",      "total50_dbu",   "towers",         "word"}));
  EXPECT_EQ(row["call"], "QARR");
  EXPECT_EQ(row["line"], 3);
  EXPECT_EQ(row["pattern_known"], true);
  EXPECT_EQ(row["hourly_loss_db"], 0);
  EXPECT_EQ(who["silent"].toArray()[0].toObject(),
            (QJsonObject{{"call", "QLOC"}, {"city", "NEAR TOWN"}, {"reason", "day only"}}));
  const QJsonObject noon = folder_.Json(question_ + QStringList{"--time", "2026-11-22T17:00Z"}).object();
  EXPECT_TRUE(noon["rows"].toArray()[0].toObject()["hourly_loss_db"].isNull());
}

TEST_F(WhoTest, CsvHasOneHeaderLineAndPointsInNumbers) {
  const Answer csv = folder_.Run(question_ + QStringList{"--time", "2026-11-22T05:00Z", "--csv"});
  const QStringList lines = QString::fromStdString(csv.Out).split("\r\n");
  ASSERT_EQ(lines.size(), 5) << csv.Out;
  EXPECT_TRUE(lines[0].startsWith("frequency,call,city,state,country,hours,power_kw,towers,line,"));
  EXPECT_TRUE(lines[1].startsWith("1510,QARR,\"\"\"ARRAY\"\"\",NY,United States,N,1.0000,2,3,"))
      << lines[1].toStdString();
  EXPECT_TRUE(lines[2].endsWith(",likely,\"sky wave, pattern not known\"")) << lines[2].toStdString();
  EXPECT_EQ(lines[3], "1510,QLOC,NEAR TOWN,PA,United States,,,,,,,,,,,,,,,,,,,silent,day only");
  for (const QString& line : lines.mid(0, 4)) EXPECT_EQ(line.split(',').size() - (line == lines[2]), 25);

  EXPECT_EQ(folder_.Run({"hets", "--frequency", "1230", "--csv"}).Out,
            "frequency,below_beat_khz,below_frequency,above_beat_khz,above_frequency,on_grid\r\n"
            "1230,6,1224,3,1233,false\r\n");
  const Answer stations = folder_.Run({"stations", "--frequency", "1510", "--home", "40,75", "--csv"});
  EXPECT_TRUE(
      stations.Out.starts_with("frequency,call,city,state,country,hours,latitude,longitude,power_kw,"
                               "towers,distance_km,bearing_deg,x,y\r\n"
                               "1510,QLOC,NEAR TOWN,PA,United States,D,40.5,75,5,1,55.7"))
      << stations.Out;
  EXPECT_EQ(folder_.Run({"scan", "--home", "40,75", "--csv"}).Out, stations.Out);
}

TEST_F(WhoTest, TheBandsStrongestByChannel) {
  folder_.Put("530x.dat", "");
  folder_.Put("540x.dat", "540,QONE,TOWN,-,Canada,U,42,75,1,-,-,0\n540,QBAD,T,-,C,U,42,75,1,-,-,13\n");
  const Answer band = folder_.Run(
      {"band", "--home", "40,75", "--time", "2026-11-22T05:00Z", "--strike", "QARR", "--strike", "QNOT"});
  EXPECT_EQ(
      band,
      (Answer{0,
              " kHz  Call  City  State  Hours  kW    km  Bearing  dBu  Chance  Reason\n"
              " 540  QONE  TOWN  -      U       1   223        0   47  likely  sky wave, pattern not known\n"
              "1510  QFAR  FAR   TN     U      50  1127      250   49  likely  sky wave, pattern not known\n",
              "kestrel-cli: 540x.dat:2: 13 towers, at most 12\n"
              "kestrel-cli: --strike QNOT: no station of the band has this call\n"}));
  folder_.Put("540x.dat", "");
  const QJsonArray channels =
      folder_.Json({"band", "--home", "40,75", "--time", "2026-11-22T05:00Z", "--top", "5"}).array();
  ASSERT_EQ(channels.size(), 3);
  EXPECT_EQ(channels[0].toObject(), (QJsonObject{{"frequency", 530}, {"rows", QJsonArray()}}));
  EXPECT_EQ(channels[2].toObject()["rows"].toArray().size(), 2);
}

TEST_F(WhoTest, TheSunsDayAtHome) {
  EXPECT_EQ(folder_.Run({"sun", "--home", "40,75", "--time", "2026-11-22T05:00Z"}),
            (Answer{0,
                    "Moment       2026-11-22T05:00Z\n"
                    "State        night\n"
                    "Elevation    -69.9 deg\n"
                    "Declination  -20.1 deg\n"
                    "Dawn         2026-11-22T11:24Z\n"
                    "Sunrise      2026-11-22T11:53Z\n"
                    "Noon         2026-11-22T16:46Z\n"
                    "Sunset       2026-11-22T21:39Z\n"
                    "Dusk         2026-11-22T22:08Z\n",
                    ""}));
  const QJsonObject polar = folder_.Json({"sun", "--home", "70,-20", "--time", "2026-06-21T05:00Z"}).object();
  EXPECT_EQ(polar["state"], "polar day");
  EXPECT_TRUE(polar["sunrise"].isNull() && polar["dusk"].isNull());
  // Noon and six hours after sunset of today, whenever that is.
  for (const char* time : {"day", "night", "now"})
    EXPECT_EQ(folder_.Json({"sun", "--home", "10,75", "--time", time}).object().size(), 8) << time;
  EXPECT_EQ(folder_.Json({"sun", "--home", "10,75", "--time", "day"}).object()["state"], "day");
  EXPECT_EQ(folder_.Json({"sun", "--home", "10,75", "--time", "night"}).object()["state"], "night");
}

}  // namespace
}  // namespace kestrel::cli
