#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include "cli/Companion.h"

namespace kestrel::cli {
namespace {

TEST(HetsTest, GivesTheBeatsOfTheNineKilohertzGrid) {
  const Folder folder;
  const Answer wanted{
      0,
      "{\n"
      "  \"frequency\": 1230,\n"
      "  \"below\": {\"beat_khz\": 6, \"frequency\": 1224},\n"
      "  \"above\": {\"beat_khz\": 3, \"frequency\": 1233},\n"
      "  \"on_grid\": false,\n"
      "  \"lines\": [\"Current frequency:  1230 kHz\", \"6 kHz beat note from station on 1224 "
      "kHz\", \"3 kHz beat note from station on 1233 kHz\"]\n"
      "}\n",
      ""};
  EXPECT_EQ(folder.Run({"hets", "--frequency", "1230", "--json"}), wanted);

  const struct {
    QString frequency;
    std::string lines;
  } rows[] = {
      {"530", "Current frequency:  530 kHz\n1 kHz beat note from station on 531 kHz\n"},
      {"540", "Current frequency:  540 kHz\nNo heterodynes of 8 kHz or lower\n"},
      {"620",
       "Current frequency:  620 kHz\n8 kHz beat note from station on 612 kHz\n1 kHz beat note from station "
       "on 621 kHz\n"},
      {"1530", "Current frequency:  1530 kHz\nNo heterodynes of 8 kHz or lower\n"},
      {"1610",
       "Current frequency:  1610 kHz\n8 kHz beat note from station on 1602 kHz\n1 kHz beat note from "
       "station on 1611 kHz\n"},
      {"1619.5", "Current frequency:  1619.5 kHz\n8.5 kHz beat note from station on 1611 kHz\n"},
      {"1620", "Current frequency:  1620 kHz\n"},
      {"1700", "Current frequency:  1700 kHz\n"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(folder.Run({"hets", "--frequency", row.frequency}), (Answer{0, row.lines, ""}));
}

struct Leg {
  QStringList arguments;
  double bearing;
  double distance;
};

class DistanceTest : public testing::Test {
 protected:
  static void Check(const Leg& leg) {
    const Answer answer = Folder().Run(QStringList{"distance", "--json"} + leg.arguments);
    ASSERT_EQ(answer.Status, 0) << answer.Err;
    const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(answer.Out)).object();
    EXPECT_EQ(object["bearing_deg"].toDouble(), leg.bearing) << leg.arguments.join(' ').toStdString();
    EXPECT_EQ(object["distance"].toDouble(), leg.distance) << leg.arguments.join(' ').toStdString();
  }
};

TEST_F(DistanceTest, AgreesWithPublishedAndPlainFigures) {
  // Los Angeles to New York in E. Williams' Aviation Formulary: 0.623585 and 1.150035 radians.
  Check({{"--from", "33.95,118.4", "--to", "40.633333,73.783333"}, 65.8, 3981.6});
  // Along meridian and equator an arc of n degrees is 111.44 n km.
  Check({{"--from", "0,60", "--to", "0,70"}, 270, 1114.4});
  Check({{"--from", "0,0", "--to", "0,-10"}, 90, 1114.4});
  Check({{"--from", "-30,60", "--to", "-.5,60"}, 0, 3287.4});
  // Across the date line, 20 degrees of the equator.
  Check({{"--from", "0,170", "--to", "0,-170"}, 270, 2228.8});
}

TEST_F(DistanceTest, TakesHomeAndUnitFromTheSession) {
  const Folder folder;
  folder.Write("last.cfg", "620\nHome: Somewhere\n0\n60\n.5\n200\n1\n");
  const Answer wanted{0,
                      "{\n"
                      "  \"bearing_deg\": 270,\n"
                      "  \"distance\": 692.4,\n"
                      "  \"unit\": \"mi\",\n"
                      "  \"bearing_text\": \"270 deg\",\n"
                      "  \"distance_text\": \"692.4 mi \"\n"
                      "}\n",
                      ""};
  EXPECT_EQ(folder.Run({"--session", folder.File("last.cfg"), "distance", "--to", "0,70", "--json"}), wanted);
  EXPECT_EQ(folder.Run({"distance", "--from", "0,60", "--to", "0,70", "--miles", "--json"}), wanted);
  EXPECT_EQ(folder.Run({"distance", "--from", "0,60", "--to", "0,60.0001"}),
            (Answer{0, "Target bearing:   270 deg\nTarget distance:  0 km\n", ""}));
}

}  // namespace
}  // namespace kestrel::cli
