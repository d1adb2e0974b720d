#include <gtest/gtest.h>

#include <QDir>
#include <QJsonObject>

#include "cli/Companion.h"

namespace kestrel::cli {
namespace {

TEST(SessionCommandTest, AMissingFileIsAFirstStart) {
  const Folder folder;
  const std::string wanted =
      "{\n"
      "  \"CurrentFrequency\": 620,\n"
      "  \"HomeName\": \"Plano   TX\",\n"
      "  \"HomeLatitude\": 33.24278,\n"
      "  \"HomeLongitude\": 96.54139,\n"
      "  \"PatternSize\": 0.5,\n"
      "  \"ScaleFactor\": 200,\n"
      "  \"DistanceUnit\": 0,\n"
      "  \"DayColor\": 65280,\n"
      "  \"NightColor\": 0,\n"
      "  \"UnlimitedColor\": 255,\n"
      "  \"CriticalColor\": 16776960,\n"
      "  \"AdjacentColor\": 208931,\n"
      "  \"MapLanguage\": \"\",\n"
      "  \"AspectRatio\": 1,\n";
  const Answer answer = folder.Run({"session", "nothing.cfg", "--json"});
  EXPECT_EQ(answer.Out.substr(0, wanted.size()), wanted);
  EXPECT_EQ(folder.Run({"session", "--json"}), answer);

  // The table for people has the same names, each at the beginning of a line.
  const std::string table = '\n' + folder.Run({"session"}).Out;
  EXPECT_NE(table.find("\nHomeLongitude          96.54139\n"), std::string::npos) << table;
  const QStringList names = folder.Json({"session"}).object().keys();
  EXPECT_GT(names.size(), 20);
  for (const QString& name : names)
    EXPECT_NE(table.find('\n' + name.toStdString()), std::string::npos) << name.toStdString();
}

TEST(SessionCommandTest, WhatCannotBeReadOrWrittenIsNamed) {
  const Folder folder;
  folder.Put("620x.dat", "");
  EXPECT_EQ(folder.Run({"session", "."}).Status, 1);
  EXPECT_EQ(folder.Run({"--session", "nothing.cfg", "stations"}),
            (Answer{1, "",
                    "kestrel-cli: nothing.cfg: there is no such file; name a last-session file that can be "
                    "read, or leave it out for a first start\n"}));
  EXPECT_EQ(folder.Run({"session", "--write", "no/such/last.cfg"}),
            (Answer{1, "",
                    "kestrel-cli: no/such/last.cfg: No such file or directory; the last-session file was not "
                    "written\n"}));
  ASSERT_TRUE(QDir().mkdir(folder.Path("Stations.txt")));
  const Answer answer = folder.Run({"session", "--json"});
  EXPECT_EQ(answer.Status, 0);
  EXPECT_EQ(answer.Err, "kestrel-cli: Stations.txt: is a folder or a device, not a file\n");
  EXPECT_NE(answer.Out.find("\"Stations\": \"\""), std::string::npos) << answer.Out;
}

TEST(SessionCommandTest, WhatIsWrittenReadsBackTheSame) {
  const Folder folder;
  const std::string file =
      "* comment\r\n\r\nFrequency displayed: 1.23K\r\nHome: \"Là-bas\"  QC\r\n-45,5\r\nx: -73.25\r\n"
      ".0625\r\n1414.2135\r\nunit: 1\r\n1\r\n2\r\n3\r\n4\r\n16777215\r\nfr\r\n .75 \r\n";
  folder.Put("last.cfg", file);
  const QJsonDocument read = folder.Json({"session", "last.cfg", "--write", "new.cfg"});
  EXPECT_EQ(read["HomeName"].toString(), "\"Là-bas\"  QC");
  EXPECT_EQ(read["ScaleFactor"].toDouble(), 1414.2135);
  EXPECT_EQ(folder.Json({"session", "new.cfg"}), read);

  const std::string written = folder.Text("new.cfg");
  const std::size_t date = written.find("\r\n* ") + 4;
  EXPECT_EQ(written.substr(0, date), "* Kestrel last-session file\r\n* ");
  // The date alone has the form of the locale, with points in the one that writes numbers with a comma.
  EXPECT_EQ(written.find('.', date) < written.find("\r\n", date), UnderCommaLocale());
  EXPECT_EQ(
      written.substr(written.find("\r\n", date)),
      "\r\n\r\nFrequency displayed: 1230\r\nHome: \"Là-bas\"  QC\r\nHome latitude: -45.5\r\n"
      "Home longitude: -73.25\r\nRelative size of pattern: .0625\r\nScale factor: 1414.2135\r\n"
      "Distance km or miles: 1\r\nDaytime pattern color: 1\r\nNighttime pattern color: 2\r\n"
      "Unlimited-hours pattern color: 3\r\nCritical-hours pattern color: 4\r\n"
      "Adjacent channel pattern color: 16777215\r\nGoogle Maps Language: fr\r\nAspect ratio:  .75 \r\n");
}

}  // namespace
}  // namespace kestrel::cli
