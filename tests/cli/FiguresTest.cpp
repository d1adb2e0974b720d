#include <gtest/gtest.h>

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
      {"1610",
       "Current frequency:  1610 kHz\n8 kHz beat note from station on 1602 kHz\n1 kHz beat note from "
       "station on 1611 kHz\n"},
      {"1619.5", "Current frequency:  1619.5 kHz\n8.5 kHz beat note from station on 1611 kHz\n"},
      {"1700", "Current frequency:  1700 kHz\n"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(folder.Run({"hets", "--frequency", row.frequency}), (Answer{0, row.lines, ""}));
}

TEST(DistanceTest, TakesHomeAndUnitFromTheSessionOrTheOptions) {
  const Folder folder;
  folder.Put("last.cfg", "620\nHome: Somewhere\n0\n60\n.5\n200\n1\n");
  const Answer wanted{0,
                      "{\n"
                      "  \"bearing_deg\": 270,\n"
                      "  \"distance\": 692.4,\n"
                      "  \"unit\": \"mi\",\n"
                      "  \"bearing_text\": \"270 deg\",\n"
                      "  \"distance_text\": \"692.4 mi \"\n"
                      "}\n",
                      ""};
  EXPECT_EQ(folder.Run({"--session", folder.Path("last.cfg"), "distance", "--to", "0,70", "--json"}), wanted);
  EXPECT_EQ(folder.Run({"distance", "--from", "0,60", "--to", "0,70", "--miles", "--json"}), wanted);
  EXPECT_EQ(folder.Run({"distance", "--from", "0,60", "--to", "0,60.0001"}),
            (Answer{0, "Target bearing:   270 deg\nTarget distance:  0 km\n", ""}));
  // Los Angeles to New York in E. Williams' Aviation Formulary: 0.623585 and 1.150035 radians.
  EXPECT_EQ(folder.Run({"distance", "--from", "33d57mN,118 24 W", "--to", "40.633333,73.783333"}),
            (Answer{0, "Target bearing:   65.8 deg\nTarget distance:  3981.6 km\n", ""}));
}

}  // namespace
}  // namespace kestrel::cli
