#include <gtest/gtest.h>

#include "cli/Companion.h"

namespace kestrel::cli {
namespace {

TEST(UsageTest, WrongUseIsStatusTwoWithOneLineThatSaysWhatToDo) {
  const Folder folder;
  const QStringList map = {"map", "-o", "x.png"};
  const auto position = [](const std::string& given) {
    return "--to " + given +
           ": give LAT,LON in degrees, as in 33.24278,96.54139 or 33d14m34sN,96d32m29sW: latitude -90 to 90, "
           "longitude -180 to 180 and positive in the west";
  };
  const struct {
    QStringList arguments;
    std::string message;
  } rows[] = {
      {{}, "a command is missing; kestrel-cli --help lists them"},
      {{"plot"}, "plot: there is no such command; kestrel-cli --help lists them"},
      {{"hets", "--frequency", "529.9"}, "--frequency 529.9: give a number from 530 to 1700"},
      {{"hets", "--frequency", "1701"}, "--frequency 1701: give a number from 530 to 1700"},
      {{"hets", "--frequency", "620kHz"}, "--frequency 620kHz: give a number from 530 to 1700"},
      {{"hets", "--frequency", ""}, "--frequency : give a number from 530 to 1700"},
      {{"stations", "--scale", "49"}, "--scale 49: give a number from 50 to 10000"},
      {map + QStringList{"--pattern-size", ".01"}, "--pattern-size .01: give a number from 0.02 to 2"},
      {map + QStringList{"--aspect", "0"}, "--aspect 0: give a number above 0, at most 10"},
      {map + QStringList{"--hours", "D"}, "--hours D: give all, day or night"},
      {map + QStringList{"--time", "now", "--hours", "day"},
       "--time chooses the hours at each station; --hours has no part in it without --shade"},
      {map + QStringList{"--size", "63x64"}, "--size 63x64: give WIDTHxHEIGHT in pixels, 64 to 16384 each"},
      {map + QStringList{"--size", "64x16385"},
       "--size 64x16385: give WIDTHxHEIGHT in pixels, 64 to 16384 each"},
      {{"map", "-o", "map.gif"}, "-o map.gif: give a file name that ends in .png, .svg or .pdf"},
      {{"pattern", "--call", "QAAA", "--hours", "d"}, "--hours d: give D, N, C or U"},
      {{"scan"}, "-o is required; kestrel-cli scan --help tells more"},
      {{"who", "--time", "yesterday"},
       "--time yesterday: give now, or a time of UTC as in 2026-11-22T03:12Z; or day or night"},
      {{"who", "--time", "2101-01-01T00:00Z"},
       "--time 2101-01-01T00:00Z: give a year from 1950 to 2100; or day or night"},
      {{"band", "--ground", "0"}, "--ground 0: give a number above 0, at most 10000"},
      {{"who", "--hours", "D"}, "--hours D: give auto, sun or licence"},
      {{"band", "--top", "0"}, "--top 0: give a number from 1 to 10000"},
      {{"stations", "--json", "--csv"}, "--json excludes --csv; kestrel-cli stations --help tells more"},
      {{"session", ""}, "file: give a name, it is empty"},
      {{"distance", "--to", "90.1,0"}, position("90.1,0")},
      {{"distance", "--to", "0,-181"}, position("0,-181")},
      {{"distance", "--to", "40"}, position("40")},
      {{"distance", "--to", "40,"}, position("40,")},
      {{"distance", "--to", "40,75,1"}, position("40,75,1")},
      {{"distance", "--to", "40N,75S"}, position("40N,75S")},
      {{"hets", "--unknown"},
       "The following argument was not expected: --unknown; kestrel-cli hets --help tells more"},
      {{"map"}, "-o is required; kestrel-cli map --help tells more"},
  };
  for (const auto& row : rows) {
    const Answer wanted{2, "", "kestrel-cli: " + row.message + '\n'};
    EXPECT_EQ(folder.Run(row.arguments), wanted) << row.arguments.join(' ').toStdString();
  }
  EXPECT_EQ(folder.Text("x.png"), "");
}

TEST(UsageTest, HelpIsAnAnswerAndNamesEveryCommand) {
  const Folder folder;
  const Answer answer = folder.Run({"--help"});
  EXPECT_EQ(answer.Status, 0);
  EXPECT_EQ(answer.Err, "");
  for (const char* command :
       {"stations", "pattern", "hets", "distance", "map", "scan", "session", "who", "band", "sun"})
    EXPECT_NE(answer.Out.find(command), std::string::npos) << command;
  EXPECT_EQ(RunIn(folder.Path(), {"--help"}, "/dev/full").Status, 1);
}

TEST(UsageTest, ADataFolderThatIsNotThereIsStatusOne) {
  const Folder folder;
  const Answer wanted{1, "",
                      "kestrel-cli: nowhere: there is no such folder; name the folder that holds the station "
                      "files with --data\n"};
  EXPECT_EQ(RunIn(folder.Path(), {"--data", "nowhere", "stations"}), wanted);
}

TEST(UsageTest, TheCurrentFolderServesWhenItHoldsTheOutlines) {
  const Folder folder;
  folder.Put("region2.DAT", "-2000\n");
  folder.Put("Stations.txt", "Stations of a test\r\nmore\r\n");
  const Answer answer = RunIn(folder.Path(), {"session", "--json"});
  EXPECT_NE(answer.Out.find("\"DataFolder\": \"" + folder.Path().toStdString() + "\",\n"), std::string::npos);
  EXPECT_NE(answer.Out.find("\"Stations\": \"Stations of a test\"\n"), std::string::npos);
}

TEST(UsageTest, ElseTheUsersFolderIsFilledOnce) {
  const Folder folder;
  const Answer first = RunIn(folder.Path(), {"session", "--json"});
  EXPECT_EQ(first.Status, 0) << first.Err;
  EXPECT_EQ(first.Err, "");
  EXPECT_NE(first.Out.find("\"DataFolder\": \"" + folder.Path().toStdString() + "/share/kestrel\""),
            std::string::npos);
  EXPECT_NE(folder.Text("share/kestrel/REGION2.dat"), "");
  folder.Put("share/kestrel/620x.dat", "620,QOWN,Home,ST,Land,U,33,96,1,-,-,0\n");
  const Answer second = RunIn(folder.Path(), {"pattern", "--call", "QOWN", "--json"});
  EXPECT_NE(second.Out.find("QOWN"), std::string::npos);
}

}  // namespace
}  // namespace kestrel::cli
