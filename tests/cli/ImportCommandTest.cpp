#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

#include "AmqRow.h"
#include "cli/Companion.h"

namespace kestrel::cli {
namespace {

std::string Row(const std::string& call, const std::string& country, const std::string& facility) {
  return AmqRow{.Call = call,
                .Frequency = "620 kHz",
                .Country = country,
                .Facility = facility,
                .Latitude = "N|33|1|11.28",
                .Longitude = "W|96|41|56.04"}
      .Text();
}

/// Antenna tables of one station, 550 kHz, whose four towers are placed partly from the reference point,
/// partly from the tower before.
TEST(ImportCommandTest, AntennaTablesBecomeStationFiles) {
  const Folder folder;
  folder.Put("ant",
             "ant_sys_id|application_id|hours_operation|lat_deg|lat_dir|lat_min|lat_sec|lon_deg|lon_dir|"
             "lon_min|lon_sec|power|tower_count|eng_record_type|am_dom_status|^|\n"
             "71|51|N|40|N|0|0|90|W|0|0|1.0|4|C|L|^|\n");
  folder.Put("towers",
             "ant_sys_id|tower_num|field_ratio|phasing_deg|spacing_deg|orientation_deg|tower_ref_switch|^|\n"
             "71|4|0.8|-30|60|350|1|^|\n"
             "71|1|1.0|0|0|0||^|\n"
             "71|3|0.7|15|120|130|1|^|\n"
             "71|2|0.9|-90|90|40|0|^|\n");
  folder.Put("eng",
             "application_id|facility_id|station_class|am_dom_status|^|\n"
             "51|91|B|L|^|\n");
  folder.Put(
      "facility",
      "facility_id|fac_callsign|fac_country|fac_frequency|fac_service|fac_status|comm_city|comm_state|^|\n"
      "91|WQTT|US|550|AM|LICEN|BRAVO|IL|^|\n");
  ASSERT_EQ(folder.Run({"import", "ant", "towers", "eng", "facility"}).Status, 0);
  EXPECT_EQ(folder.Text("550x.dat"),
            "550, WQTT, BRAVO                   , IL  , United States, N, 40, 90, 1,-,-, 4\r\n"
            "0,1,0,0,0,0\r\n"
            "0,0.9,0,-90,90,40\r\n"
            "0,0.7,0,15,150,93.1301\r\n"
            "0,0.8,0,-30,148.3613,69.9361\r\n");
}

TEST(ImportCommandTest, ReportsImportsAndUndoes) {
  const Folder folder;
  const std::string before = "620, QOLD, TOWN, TX, United States, U, 35, 97, 1,-,-, 1\r\n0,1,90,0,0,0\r\n";
  folder.Put("620x.dat", before);
  folder.Put("amq", Row("KAAA", "US", "1") + Row("CAAA", "CA", "2") + "| half a row\n");

  const QJsonDocument dry = folder.Json({"import", "amq", "--dry-run", "--countries", "us"});
  EXPECT_FALSE(dry["written"].toBool(true));
  EXPECT_EQ(dry["rows"].toInt(), 3);
  EXPECT_EQ(dry["taken"].toInt(), 1);
  EXPECT_EQ(dry["reasons"].toArray().size(), 2);
  EXPECT_EQ(dry["changes"]["new"][0]["call"].toString(), "KAAA");
  EXPECT_EQ(dry["changes"]["gone"][0]["call"].toString(), "QOLD");
  EXPECT_EQ(folder.Text("620x.dat"), before);

  const Answer imported = folder.Run({"import", "amq", "--report", "report.txt"});
  EXPECT_EQ(imported.Status, 0);
  EXPECT_EQ(imported.Err, "") << "no progress where no terminal is";
  EXPECT_EQ(folder.Text("report.txt"), imported.Out);
  EXPECT_NE(folder.Text("620x.dat").find("CAAA"), std::string::npos);
  EXPECT_NE(folder.Text("StationsCall.DAT").find("KAAA"), std::string::npos);

  const Answer undone = folder.Run({"import", "--undo"});
  EXPECT_EQ(undone, (Answer{0, "The station files of before are back: none\n", ""}));
  EXPECT_EQ(folder.Text("620x.dat"), before);
  folder.Run({"import", "amq"});
  EXPECT_EQ(folder.Run({"import", "--undo", "--json"}),
            (Answer{0, "{\n  \"undone\": true,\n  \"source\": \"\"\n}\n", ""}));
}

TEST(ImportCommandTest, JsonTellsWhatChangedAndHow) {
  const Folder folder;
  const std::string place = ", PLANO, TX, United States, U, 33.0198, 96.6989, ";
  const std::string tower = "0,1,90,0,0,0\n";
  folder.Put("620x.dat",
             "620, KPOW" + place + "2.5,-,-, 1\n" + tower + "620, KTOW" + place + "1,-,-, 2\n" + tower +
                 "0,1,90,90,90,0\n620, KMOV, PLANO, TX, United States, U, 34.0198, 96.6989, 1,-,-, 1\n" +
                 tower);
  folder.Put("630x.dat", "630, KOLD" + place + "1,-,-, 1\n" + tower);
  std::string renamed = Row("KNEW", "US", "4");
  renamed.replace(renamed.find("620"), 3, "630");
  folder.Put("amq", Row("KPOW", "US", "1") + Row("KTOW", "US", "2") + Row("KMOV", "US", "3") + renamed);
  const QJsonValue changes = folder.Json({"import", "amq", "--dry-run"})["changes"];
  EXPECT_EQ(changes["power"][0]["call"].toString(), "KPOW");
  EXPECT_EQ(changes["power"][0]["power_kw_before"].toDouble(), 2.5);
  EXPECT_EQ(changes["power"][0]["power_kw"].toDouble(), 1);
  EXPECT_EQ(changes["pattern"][0]["call"].toString(), "KTOW");
  EXPECT_EQ(changes["pattern"][0]["towers_before"].toInt(), 2);
  EXPECT_EQ(changes["pattern"][0]["towers"].toInt(), 1);
  EXPECT_EQ(changes["moved"][0]["call"].toString(), "KMOV");
  EXPECT_NEAR(changes["moved"][0]["distance_km"].toDouble(), 111.2, 0.5) << "a degree of latitude";
  EXPECT_EQ(changes["call_sign"][0]["call"].toString(), "KNEW");
  EXPECT_EQ(changes["call_sign"][0]["call_before"].toString(), "KOLD");
}

TEST(ImportCommandTest, FewerThanHalfOfTheStationsNeedAWord) {
  const Folder folder;
  std::string rows;
  for (const char* facility : {"1", "2", "3"}) rows += Row(std::string("QAA") + facility, "US", facility);
  folder.Put("three", rows);
  folder.Put("one", Row("QAA1", "US", "1"));
  ASSERT_EQ(folder.Run({"import", "three"}).Status, 0);
  const std::string before = folder.Text("620x.dat");
  const Answer kept = folder.Run({"import", "one"});
  EXPECT_EQ(kept.Status, 1);
  EXPECT_EQ(
      kept.Err,
      "kestrel-cli: 1 stations would be left where there are 3, less than half; the station files are as "
      "they were; to import all the same, add --fewer\n");
  EXPECT_EQ(folder.Text("620x.dat"), before);
  const QJsonDocument dry = folder.Json({"import", "one", "--dry-run"});
  EXPECT_EQ(dry["stations"].toInt(), 1);
  EXPECT_EQ(dry["stations_before"].toInt(), 3);
  EXPECT_EQ(folder.Run({"import", "one", "--fewer"}).Status, 0);
  EXPECT_NE(folder.Text("620x.dat"), before);
}

TEST(ImportCommandTest, WhatCannotBeImportedIsNamedAndChangesNothing) {
  const Folder folder;
  folder.Put("amq", Row("KAAA", "US", "1"));
  folder.Put("letter", "Dear listener,\n");
  const std::string kUndoAlone = "import --undo: takes no files and no other options than --data and --json";
  const struct {
    QStringList arguments;
    int status;
    std::string message;
  } rows[] = {
      {{}, 2, "import: name the files to import, or --undo"},
      {{"amq", "--undo"}, 2, kUndoAlone},
      {{"--undo", "--dry-run"}, 2, kUndoAlone},
      {{"--undo", "--fewer"}, 2, kUndoAlone},
      {{"--undo", "--include-silent"}, 2, kUndoAlone},
      {{"--undo", "--countries", "US"}, 2, kUndoAlone},
      {{"amq", "--countries", "US,UK"},
       2,
       "--countries US,UK: \"UK\" is no country of the FCC's lists, as US, CA and MX are"},
      {{"amq", "--countries", " "}, 2, "--countries: give codes, as in US,CA,MX"},
      {{"amq", "none"}, 1, "none: there is no such file; nothing was written"},
      {{"letter"}, 1, "no station was found; the station files are as they were; nothing was written"},
      {{"amq", "--dry-run", "--report", "no/such/report"}, 1, "no/such/report: "},
      {{"--undo"}, 1, folder.Path().toStdString() + ": holds no station files that an import replaced"},
  };
  for (const auto& row : rows) {
    const Answer answer = folder.Run(QStringList{"import"} + row.arguments);
    EXPECT_EQ(answer.Status, row.status) << row.message;
    EXPECT_EQ(answer.Err.find("kestrel-cli: " + row.message), 0U) << answer.Err;
  }
  EXPECT_EQ(folder.Text("620x.dat"), "");
}

}  // namespace
}  // namespace kestrel::cli
