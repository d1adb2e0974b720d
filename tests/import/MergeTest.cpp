#include "import/merge/Merge.h"

#include <gtest/gtest.h>

#include "ImportTesting.h"
#include "data/StationFile.h"

namespace kestrel {
namespace {

/// A list row of the sample tables' directional station by day, elsewhere and with another power.
AmqRow ListedWqaa() {
  return {.Call = "WQAA",
          .Frequency = "550 kHz",
          .Hours = "Daytime",
          .City = "DELTA",
          .Power = "2.5 kW",
          .Directional = "Directional",
          .Facility = "901",
          .Latitude = "N|41|0|0",
          .Longitude = "W|91|0|0"};
}

TextImport WithTables(const std::string& list, const ImportOptions& options = {}) {
  auto texts = SampleTables(Order::A, false);
  texts.emplace_back("amq.txt", list);
  return ImportTexts(texts, options);
}

TEST(Merge, TheListGivesTheStationAndTheTablesItsTowers) {
  const TextImport import = WithTables(ListedWqaa().Text());
  EXPECT_TRUE(import.files.at("550x.dat")
                  .starts_with("550, WQAA, DELTA                   , IL  , United States, D, 41, 91, "
                               "2.5,-,-, 3\r\n0,1,90,0,0,0\r\n"));
  EXPECT_EQ(import.Hours("WQAA"), "D3N1");  // the night comes from the tables alone
}

TEST(Merge, JoinsByCallSignWhereTheFacilityIsNotKnown) {
  AmqRow row = ListedWqaa();
  for (const char* facility : {"", "0", "-", "777"}) {
    row.Facility = facility;
    EXPECT_TRUE(WithTables(row.Text()).Hours("WQAA").starts_with("D3")) << facility;
  }
  row.Frequency = "560 kHz";
  EXPECT_EQ(WithTables(row.Text()).report.Of(Finding::TowersUnknown).Rows, 1);
  row.Frequency = "550 kHz";
  AmqRow namesake = row;  // with two of the name no one can tell whose towers they are
  namesake.City = "ELSEWHERE";
  namesake.Facility = "778";
  EXPECT_EQ(WithTables(row.Text() + namesake.Text()).report.Of(Finding::TowersUnknown).Rows, 2);

  NamedTexts texts = SampleTables(Order::A, false);  // nor with two of them in the tables
  texts[0].second = Replaced(texts[0].second, "|U|31|", "|D|31|");
  texts[3].second = Replaced(Replaced(texts[3].second, "XQBB", "WQAA"), "800.0", "550.0");
  texts.emplace_back("amq.txt", row.Text());
  EXPECT_EQ(ImportTexts(texts).Examples(Finding::TowersUnknown), "amq.txt:1: WQAA D\n");
}

TEST(Merge, WithoutTowersTheListSaysWhatIsKnown) {
  AmqRow row{.Directional = "Directional"};
  const TextImport directional = WithTables(row.Text());
  EXPECT_EQ(directional.Hours("QAAA"), "U0");
  EXPECT_EQ(directional.Examples(Finding::TowersUnknown), "amq.txt:1: QAAA U\n");
  row.Directional = "";
  EXPECT_TRUE(WithTables(row.Text())
                  .files.at("1230x.dat")
                  .ends_with(", U, 39.7817, 89.6501, 1,-,-, 1\r\n0,1,90,0,0,0\r\n"));

  AmqRow listed = ListedWqaa();
  listed.Directional = "";
  EXPECT_EQ(WithTables(listed.Text()).Examples(Finding::TowersDisagree), "amq.txt:1: WQAA D, 3 towers\n");
}

/// The sample tables with WQAA's day array grown to 13 towers.
NamedTexts TablesWithManyTowers() {
  NamedTexts texts = SampleTables(Order::A, true);
  texts[0].second = Replaced(texts[0].second, "|3|C|", "|13|C|");
  for (int number = 4; number <= 13; ++number)
    texts[1].second += "701||90|1.0|||||0|0||" + std::to_string(number) + "|0|||||" + std::to_string(number) +
                       "||0|||||01/02/2024|^|\n";
  return texts;
}

TEST(Merge, OnlyANonDirectionalStationHasATowerWhateverTheTablesLack) {
  const TextImport manyTowers = ImportTexts(TablesWithManyTowers());
  EXPECT_EQ(manyTowers.Hours("WQAA"), "D0N1");
  EXPECT_EQ(manyTowers.Examples(Finding::TooManyTowers), "am_ant_sys.dat:2: WQAA D, 13 towers\n");

  AmqRow listed = ListedWqaa();
  listed.Directional = "";
  const auto import = [&](NamedTexts texts) {
    texts.emplace_back("amq.txt", listed.Text());
    const TextImport result = ImportTexts(texts);
    EXPECT_EQ(result.Hours("WQAA"), "D1N1");
    EXPECT_EQ(result.report.Of(Finding::TowersUnknown).Rows, 0);
    return result;
  };
  EXPECT_EQ(import(TablesWithManyTowers()).Examples(Finding::TooManyTowers),
            "amq.txt:1: WQAA D, 13 towers\n");

  auto incomplete = SampleTables(Order::A, false);
  std::string& towers = incomplete.at(1).second;
  towers.erase(0, towers.find('\n') + 1);
  EXPECT_EQ(import(incomplete).Examples(Finding::TowersPassedOver), "amq.txt:1: WQAA D, 2 of 3 towers\n");

  auto without = SampleTables(Order::A, false);
  without.erase(without.begin() + 1);
  EXPECT_EQ(import(without).Examples(Finding::TowersPassedOver), "amq.txt:1: WQAA D, 0 of 3 towers\n");
}

TEST(Merge, TheBestStatusCountsAndOfEqualsTheLast) {
  const auto listed = [](const char* status, const char* power) {
    return AmqRow{.Status = status, .Power = power}.Text();
  };
  const ImportOptions permits{.IncludePermits = true};
  const auto power = [&](const std::string& text) {
    const TextImport import = ImportTexts({{"amq.txt", text}}, permits);
    EXPECT_EQ(import.stations.size(), 1U);
    return import.stations.front().PowerKW;
  };
  EXPECT_EQ(
      power(listed("CP", "4 kW") + listed("MOD", "3 kW") + listed("LIC", "1 kW") + listed("STA", "2 kW")), 1);
  EXPECT_EQ(power(listed("CP", "4 kW") + listed("STA", "2 kW") + listed("MOD", "3 kW")), 2);
  EXPECT_EQ(power(listed("CP", "4 kW") + listed("MOD", "3 kW")), 3);
  EXPECT_EQ(power(listed("LIC", "1 kW") + listed("LIC", "5 kW")), 5);
}

TEST(Merge, TheLastListCountsMost) {
  const std::string old = AmqRow{.Power = "1 kW"}.Text();
  const TextImport later =
      ImportTexts({{"old", old}, {"new", AmqRow{.Status = "STA", .Power = "2 kW"}.Text()}});
  ASSERT_EQ(later.stations.size(), 1U);
  EXPECT_EQ(later.stations.front().PowerKW, 2);
  EXPECT_EQ(later.Examples(Finding::Superseded), "old:1: QAAA 1230 U\n");

  // Day and night in place of unlimited.
  const std::string split = AmqRow{.Hours = "Daytime"}.Text() + AmqRow{.Hours = "Nighttime"}.Text();
  EXPECT_EQ(ImportTexts({{"old", old}, {"new", split}}).Hours("QAAA"), "D1N1");
  EXPECT_EQ(ImportTexts({{"old", split}, {"new", old}}).Hours("QAAA"), "U1");
  EXPECT_EQ(ImportTexts({{"one", old + split}}).Hours("QAAA"), "D1N1U1");  // one list is taken at its word
}

TEST(Merge, AStationEndedInALaterListIsGone) {
  const auto row = [](const std::string& status, const std::string& facility = "900001") {
    return AmqRow{.Status = status, .Facility = facility}.Text();
  };
  const auto left = [](const std::vector<std::string>& lists) {
    NamedTexts texts;
    for (const std::string& list : lists) texts.emplace_back("list" + std::to_string(texts.size()), list);
    return ImportTexts(texts).Hours("QAAA");
  };
  for (const char* status : {"DEL", "CNL", "EXP"}) {
    EXPECT_EQ(left({row("LIC"), row(status)}), "") << status;
    EXPECT_EQ(left({row("LIC", ""), row(status, "0")}), "") << status;
    EXPECT_EQ(left({row("LIC"), row(status, "")}), "") << status;
    EXPECT_EQ(left({row("LIC"), row(status, "") + row("LIC")}), "U1") << status;
    EXPECT_EQ(left({row(status), row("LIC")}), "U1") << status;
    EXPECT_EQ(left({row("LIC"), row(status), row("LIC")}), "U1") << status;
    EXPECT_EQ(left({row("LIC") + row(status)}), "U1") << status;
    EXPECT_EQ(left({row("LIC"), row(status) + row("LIC")}), "U1") << status;
  }
  for (const char* status : {"CP", "APP"}) EXPECT_EQ(left({row("LIC"), row(status)}), "U1") << status;
  EXPECT_EQ(left({row("LIC"), AmqRow{.Call = "-"}.Text()}), "");
  EXPECT_EQ(left({row("LIC"), AmqRow{.Hours = "Nighttime", .Status = "DEL"}.Text()}), "U1");
  for (const char* facility : {"", "900001"})
    EXPECT_EQ(
        left({row("LIC", facility), AmqRow{.Status = "DEL", .City = "ELSEWHERE", .Facility = ""}.Text()}),
        "U1");
  EXPECT_EQ(ImportTexts({{"old", row("LIC")}, {"new", row("DEL")}}).Examples(Finding::Superseded),
            "old:1: QAAA 1230 U, off the air in a later list\n");
}

TEST(Merge, AChannelHoldsItsStrongestStations) {
  auto texts = SampleTables(Order::A, false);
  std::string list =
      AmqRow{.Call = "QWEAK", .Frequency = "550 kHz", .Power = "0.5 kW", .Facility = "1"}.Text();
  for (int i = 2; i <= MaxRecords; ++i)
    list += AmqRow{.Frequency = "550 kHz", .Facility = std::to_string(i + 1'000'000)}.Text();
  texts.emplace_back("amq.txt", list);
  const TextImport full = ImportTexts(texts);
  EXPECT_EQ(full.report.Records, MaxRecords + 1) << "one of the tables is on another channel";
  EXPECT_EQ(full.Examples(Finding::ChannelFull),
            "am_ant_sys.dat:1: WQAA 550 D\nam_ant_sys.dat:2: WQAA 550 N\n");

  texts.back().second += AmqRow{.Call = "QMORE", .Frequency = "550 kHz", .Facility = "2"}.Text();
  const TextImport over = ImportTexts(texts);
  EXPECT_TRUE(over.Examples(Finding::ChannelFull).starts_with("amq.txt:1: QWEAK 550 U\n"))
      << over.Examples(Finding::ChannelFull);
  EXPECT_EQ(over.Hours("QMORE"), "U1");
  EXPECT_EQ(over.report.Files().back().Taken, MaxRecords);
  StationFileReader reader("550x.dat", over.files.at("550x.dat"));
  while (reader.Next()) {
  }
  EXPECT_TRUE(reader.Notes().empty()) << reader.Notes().front();
}

TEST(Merge, TheListOverrulesTheTablesOnWhoIsOnTheAir) {
  AmqRow row = ListedWqaa();
  row.Status = "CNL";
  const TextImport cancelled = WithTables(row.Text());
  EXPECT_EQ(cancelled.Hours("WQAA"), "");
  EXPECT_EQ(cancelled.Examples(Finding::NotOnAir),
            "amq.txt:1: WQAA, status CNL\nam_ant_sys.dat:1: WQAA 550 D, by the AM Query list\n"
            "am_ant_sys.dat:2: WQAA 550 N, by the AM Query list\n");
  EXPECT_EQ(cancelled.report.Of(Finding::NotReferred).Rows, 6);  // four towers and what joins them
  // A row without the facility ends the day by its names; the night, which no row speaks of, stays.
  row.Facility = "";
  row.City = "BRAVO";
  EXPECT_EQ(WithTables(row.Text()).Hours("WQAA"), "N1");
  row.Facility = "901";
  row.Status = "LIC";
  row.Hours = "Unlimited";  // in place of the tables' day and night
  const TextImport unlimited = WithTables(row.Text());
  EXPECT_EQ(unlimited.Hours("WQAA"), "U0");
  EXPECT_EQ(unlimited.report.Of(Finding::Superseded).Rows, 2);
}

TEST(Merge, SilentStationsAndPermitsOnlyWhenWanted) {
  const struct {
    const char *table, *from, *to;
    ImportOptions options;
    const char* hours;  // of the day and of the night; the day's antenna record is the first
  } cases[] = {
      {"facility", "LICEN", "LICSL", {}, ""},
      {"facility", "LICEN", "LICSL", {.IncludeSilent = true}, "D3N1"},
      {"facility", "LICEN", "LICAN", {.IncludeSilent = true}, ""},
      {"am_ant_sys", "|L|", "|C|", {}, "N1"},
      {"am_ant_sys", "|L|", "|C|", {.IncludePermits = true}, "D3N1"},
      {"am_ant_sys", "|L|", "||", {}, "N1"},  // only abroad it is blank
      {"am_eng_data", "|L|", "|C|", {}, ""},
      {"facility", "|US|", "|MX|", {}, ""},
  };
  for (const auto& [table, from, to, options, hours] : cases)
    EXPECT_EQ(ImportChanged(table, from, to, options).Hours("WQAA"), hours)
        << table << ' ' << from << ' ' << to;

  // A permit's list row does not take the towers of the licence.
  AmqRow row = ListedWqaa();
  row.Status = "CP";
  EXPECT_EQ(WithTables(row.Text(), {.IncludePermits = true}).Hours("WQAA"), "D0N1");
}

}  // namespace
}  // namespace kestrel
