#include "import/merge/Changes.h"

#include <gtest/gtest.h>

#include <tuple>

#include "ImportTesting.h"
#include "data/StationFile.h"

namespace kestrel {
namespace {

const std::string kOne = "1230, QAAA, TOWN, IL, United States, D, 40, 90, 1,-,-, 1\n0,1,90,0,0,0\n";
const std::string kArray =
    "1230, QBBB, TOWN, IL, United States, N, 45, 95, 5,-,-, 2\n0,1,90,0,0,0\n0,.5,90,-90,90,40\n";

std::string Differences(const std::string& before, const std::string& after) {
  return ChangesText(
      CompareChannel(ReadAntennas(1230, "1230x.dat", before), ReadAntennas(1230, "1230x.dat", after)), 0);
}

TEST(Changes, EveryKindHasItsLine) {
  const std::string place = ", TOWN, IL, United States";
  EXPECT_EQ(Differences(kOne + kArray, kArray + kOne), "No changes\n");
  EXPECT_EQ(Differences(kOne, kOne + kArray), "new: 1\n  1230 QBBB N" + place + '\n');
  EXPECT_EQ(Differences(kOne + kArray, kOne), "gone: 1\n  1230 QBBB N" + place + '\n');
  EXPECT_EQ(Differences(kOne, Replaced(kOne, "40,", "40.1,")),
            "moved: 1\n  1230 QAAA D" + place + ": 11.1 km\n");
  EXPECT_EQ(Differences(kOne, Replaced(kOne, "40,", "40.008,")), "No changes\n");  // 0.9 km
  EXPECT_EQ(Differences(kOne, Replaced(kOne, " 1,-", " 0.25,-")),
            "power: 1\n  1230 QAAA D" + place + ": 1 kW -> 0.25 kW\n");
  EXPECT_EQ(Differences(kArray, Replaced(kArray, "-90", "-91")),
            "pattern: 1\n  1230 QBBB N" + place + ": 2 towers\n");
  for (const auto& [from, near, far] : {std::tuple{".5,90", ".5009,90", ".502,90"},
                                        {"-90,90", "-90.009,90", "-90.02,90"},
                                        {",90,40", ",90.009,40", ",90.02,40"}}) {
    EXPECT_EQ(Differences(kArray, Replaced(kArray, from, near)), "No changes\n") << near;
    EXPECT_EQ(Differences(kArray, Replaced(kArray, from, far)).substr(0, 10), "pattern: 1") << far;
  }
  EXPECT_EQ(Differences(kArray, "1230, QBBB, TOWN, IL, United States, N, 45, 95, 5,-,-, 0\n"),
            "pattern: 1\n  1230 QBBB N" + place + ": 2 towers -> not known\n");
  EXPECT_EQ(Differences(kOne, Replaced(kOne, "QAAA", "QCCC")),
            "call sign: 1\n  1230 QCCC D" + place + ": was QAAA\n");
  // Only at the same place and hours.
  for (const auto& [from, to] : {std::pair{"40,", "40.1,"}, {" D,", " N,"}})
    EXPECT_EQ(Differences(kOne, Replaced(Replaced(kOne, "QAAA", "QCCC"), from, to)).substr(0, 6), "new: 1");
}

TEST(Changes, APatternIsWhatItRadiatesNotHowItIsWritten) {
  const char* towers[] = {
      "0,2,100,30,0,0\n0,1,100,-60,90,40",  // scale, turn, heights
      "0,1,90,0,10,0\n 1,.5,90,-90,90,40",  // shifted, chained
      "0,1,90,0,0,0\n0,.5,90,270,90,400",   // full turns
  };
  for (const char* other : towers)
    EXPECT_EQ(Differences(kArray, Replaced(kArray, "0,1,90,0,0,0\n0,.5,90,-90,90,40", other)), "No changes\n")
        << other;
  EXPECT_EQ(Differences(kOne, Replaced(kOne, "0,1,90", "0,3,45")), "No changes\n");
}

TEST(Changes, NamesakesAreTheNearest) {
  const std::string far = Replaced(kOne, "40,", "30,");
  EXPECT_EQ(Differences(kOne + far, far + kOne), "No changes\n");
  EXPECT_EQ(Differences(kOne + far, Replaced(far, " 30,", " 31,") + kOne).substr(0, 8), "moved: 1");
}

TEST(Changes, TwinsAreKnownByWhatTheyRadiate) {
  const std::string weak = kOne;
  const std::string strong = Replaced(kOne, " 1,-", " 10,-");
  const std::string array = Replaced(Replaced(kArray, "QBBB", "QAAA"), " N, 45, 95, 5", " D, 40, 90, 10");
  EXPECT_EQ(Differences(weak + strong + array, array + strong + weak), "No changes\n");
  const std::string place = "  1230 QAAA D, TOWN, IL, United States";
  EXPECT_EQ(Differences(weak + strong, strong), "gone: 1\n" + place + '\n');
  EXPECT_EQ(Differences(strong + weak + array, array + weak), "gone: 1\n" + place + '\n');
  EXPECT_EQ(Differences(weak, strong + weak), "new: 1\n" + place + '\n');
  // One grew, and the order turned.
  EXPECT_EQ(Differences(weak + strong, strong + Replaced(kOne, " 1,-", " 2,-")),
            "power: 1\n" + place + ": 1 kW -> 2 kW\n");
  // A namesake a step aside is known by its place no more than by what it radiates.
  EXPECT_EQ(Differences(weak + Replaced(strong, "40,", "40.002,"), Replaced(weak, "40,", "40.001,") + strong),
            "No changes\n");
}

TEST(Changes, ACallSignThatWentElsewhereLeftItsSiteToAnother) {
  const std::string site = ", TOWN, IL, United States";
  const std::string far = Replaced(kOne, "40,", "30,");
  const std::string renamed = Replaced(kOne, "QAAA", "QBBB");
  EXPECT_EQ(Differences(kOne, far + renamed),
            "new: 1\n  1230 QAAA D" + site + "\ncall sign: 1\n  1230 QBBB D" + site + ": was QAAA\n");
  EXPECT_EQ(Differences(kOne + Replaced(far, "QAAA", "QCCC"), far + renamed),
            "call sign: 2\n  1230 QAAA D" + site + ": was QCCC\n  1230 QBBB D" + site + ": was QAAA\n");
}

TEST(Changes, AFullChannelOfOneCallSignIsCompared) {
  // All against all would be a hundred million pairs.
  std::string before;
  for (int i = 0; i < MaxRecords; ++i) before += kOne;
  const std::string after = Replaced(before, " 1,-", " 2,-");
  EXPECT_FALSE(Differences(before, after).empty());
  EXPECT_EQ(Differences(before, before), "No changes\n");
}

TEST(Changes, TheTextStopsWhereItIsTold) {
  ChangeList changes(3);
  for (Change& change : changes) change.Texts = PackedTexts<4>({"QAAA", "", "", ""});
  EXPECT_EQ(ChangesText(changes, 2), "new: 3\n  0 QAAA , \n  0 QAAA , \n  and 1 more\n");
}

}  // namespace
}  // namespace kestrel
