#include "import/read/AntennaTables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ImportTesting.h"
#include "import/merge/TowerArray.h"
#include "pattern/Pattern.h"

namespace kestrel {
namespace {

using testing::FloatNear;

TowerRow Row(int number, float field, float spacing, float bearing, bool fromPrevious) {
  TowerRow row;
  row.Number = static_cast<std::int16_t>(number);
  row.Field = field;
  row.Spacing = spacing;
  row.Bearing = bearing;
  row.FromPrevious = fromPrevious;
  return row;
}

TEST(TowerArray, AChainAddsUp) {
  const TowerArray array = ResolveTowers(
      {Row(4, 1, 60, 350, true), Row(1, 1, 0, 0, true), Row(3, 1, 120, 130, true), Row(2, 1, 90, 40, false)},
      4);
  ASSERT_EQ(array.Towers.size(), 4U);
  EXPECT_EQ(array.Towers[1].Spacing, 90);
  EXPECT_EQ(array.Towers[1].Bearing, 40);
  EXPECT_THAT(array.Towers[2].Spacing, FloatNear(150.000F, 5e-4F));
  EXPECT_THAT(array.Towers[2].Bearing, FloatNear(93.1301F, 5e-5F));
  EXPECT_THAT(array.Towers[3].Spacing, FloatNear(148.3613F, 5e-5F));
  EXPECT_THAT(array.Towers[3].Bearing, FloatNear(69.9361F, 5e-5F));
}

TEST(TowerArray, ATowerWithoutFieldStillCarriesTheNext) {
  const TowerArray array =
      ResolveTowers({Row(1, 1, 10, 0, true), Row(2, 0, 90, 90, false), Row(3, 1, 90, 90, true)}, 3);
  ASSERT_EQ(array.Towers.size(), 2U);
  EXPECT_EQ(array.Towers[0].Spacing, 10);  // the first is never placed from another
  EXPECT_THAT(array.Towers[1].Spacing, FloatNear(180.0F, 1e-4F));
  EXPECT_THAT(array.Towers[1].Bearing, FloatNear(90.0F, 1e-4F));
  EXPECT_EQ(array.Fieldless.size(), 1U);
}

TEST(TowerArray, WhatCannotBeAnArrayIsNamed) {
  EXPECT_EQ(ResolveTowers({Row(1, 1, 0, 0, false), Row(2, 1, 90, 0, false)}, 3).Fault, "2 of 3 towers");
  EXPECT_EQ(ResolveTowers({Row(1, 0, 0, 0, false), Row(2, 0, 90, 0, false)}, 2).Fault,
            "no tower with a field");
  TowerRow blank = Row(2, 1, 90, 0, false);
  blank.Field.reset();
  EXPECT_EQ(ResolveTowers({Row(1, 1, 0, 0, false), blank}, 0).Fault, "tower 2 without a field ratio");

  std::vector<TowerRow> many;
  for (int number = 1; number <= 13; ++number)
    many.push_back(Row(number, number == 5 ? 0 : 1, static_cast<float>(number), 0, false));
  EXPECT_FALSE(ResolveTowers(many, 13).TooMany);  // 12 of them radiate
  many[4].Field = 1;
  EXPECT_TRUE(ResolveTowers(many, 13).TooMany);
}

TEST(AntennaTables, TheWholeChainComesOutInTheStationFile) {
  const TextImport import = ImportTexts(SampleTables(Order::A, false));
  const std::string& file = import.files.at("550x.dat");
  EXPECT_EQ(file,
            "550, WQAA, BRAVO                   , IL  , United States, D, 40.5, 90.25, 5,-,-, 3\r\n"
            "0,1,90,0,0,0\r\n"
            "0,0.9,90,-90,90,40\r\n"
            "0,0.7,95.5,15,150,93.1301\r\n"
            "550, WQAA, BRAVO                   , IL  , United States, N, 40.5, 90.25, 0.5,-,-, 1\r\n"
            "0,1,90,0,0,0\r\n");
  EXPECT_EQ(import.files.at("800x.dat"),
            "800, XQBB, CHARLIE                 , -   , Mexico       , U, 31.7362, 106.4848, 50,-,-, 1\r\n"
            "0,1,90,0,0,0\r\n");
  EXPECT_EQ(import.report.Total().LeftOut, 0);

  // The same array with its chain, computed without the importer's sums.
  StationFileReader chained(
      "550x.dat",
      "550, WQAA, BRAVO, IL, United States, D, 40.5, 90.25, 5,-,-, 3\n0,1,90,0,0,0\n0,.9,90,-90,90,40\n"
      " 1,.7,95.5,15,120,130\n");
  StationFileReader imported("550x.dat", file);
  PatternValues expected{};
  PatternValues values{};
  ASSERT_TRUE(ComputePattern(*chained.Next(), expected));
  ASSERT_TRUE(ComputePattern(*imported.Next(), values));
  for (std::size_t azimuth = 0; azimuth < values.size(); ++azimuth)
    EXPECT_NEAR(values[azimuth], expected[azimuth], 2e-4) << azimuth;
}

TEST(AntennaTables, BothOrdersMakeTheSameFiles) {
  const StationSet expected = ImportTexts(SampleTables(Order::A, false)).files;
  for (const Order order : {Order::A, Order::B}) {
    for (const bool header : {false, true}) {
      NamedTexts texts = SampleTables(order, header);
      const auto add = [&](const std::string& table, const std::string& row) {
        texts.emplace_back(table + ".dat", TableText{table, order, header, {row}}.Text());
      };
      add("application",
          "app_service=AM application_id=501 facility_id=901 comm_city=BRAVO fac_callsign=WQAA "
          "fac_frequency=550");
      add("am_augs",
          "ant_sys_id=701 aug_id=1 azimuth_deg=250 radiation_aug=95.5 span_deg=40 "
          "last_update_date=01/02/2024");
      std::reverse(texts.begin(), texts.end());  // the tables may come in any order too
      const TextImport import = ImportTexts(texts);
      EXPECT_EQ(import.files, expected);
      ASSERT_TRUE(import.report.Refusals().empty()) << ReportText(import.report);
      for (const ImportReport::File& file : import.report.Files())
        EXPECT_EQ(file.Content, Replaced(file.Name, ".dat", " table"));
      EXPECT_EQ(import.report.Of(Finding::NotUsed).Rows, 1);
      EXPECT_EQ(import.report.Total().LeftOut, 1);

      for (auto& [name, text] : texts)  // and with CR LF
        for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 2))
          text.insert(at, "\r");
      EXPECT_EQ(ImportTexts(texts).files, expected);
    }
  }
}

TEST(AntennaTables, EveryKindOfBadRowIsNamed) {
  const struct {
    const char* table;
    const char* from;
    const char* to;
    Finding finding;
    const char* example;
  } cases[] = {
      {"am_ant_sys", "|D|40|N|", "|Z|40|N|", Finding::BadField, "am_ant_sys.dat:2: hours_operation \"Z\"\n"},
      {"am_ant_sys", "|D|40|N|", "|P|40|N|", Finding::OtherHours,
       "am_ant_sys.dat:2: antenna system 701, hours P\n"},
      {"am_ant_sys", "|D|40|N|", "|D|400|N|", Finding::BadField,
       "am_ant_sys.dat:2: latitude: degrees \"400\"\n"},
      {"am_ant_sys", "|5.0|", "|5,0|", Finding::BadField, "am_ant_sys.dat:2: power \"5,0\"\n"},
      {"am_ant_sys", "|5.0|", "||", Finding::BadField, "am_ant_sys.dat:2: WQAA, a power of 0 kW\n"},
      {"am_ant_sys", "DA2|701|", "DA2||", Finding::BadField, "am_ant_sys.dat:2: ant_sys_id \"\"\n"},
      {"am_ant_sys", "|3|C|", "|3|A|", Finding::NotLicensed,
       "am_ant_sys.dat:2: antenna system 701, record type A\n"},
      {"am_ant_sys", "|L|", "|C|", Finding::NotLicensed, "am_ant_sys.dat:2: antenna system 701\n"},
      {"am_ant_sys", "|501|", "|599|", Finding::NoStation,
       "am_ant_sys.dat:2: antenna system 701, application 599\n"},
      {"am_ant_sys", "|^|", "|", Finding::WrongForm, "am_ant_sys.dat:2: the row does not end in |^|\n"},
      {"am_ant_sys", "DA2|", "", Finding::WrongForm, "am_ant_sys.dat:2: 38 columns, 39 expected\n"},
      {"am_eng_data", "|901|", "|999|", Finding::NoStation,
       "am_ant_sys.dat:2: antenna system 701, facility 999\nam_ant_sys.dat:3: antenna system 702, facility "
       "999\n"},
      {"am_towers", "|0.9|", "|x|", Finding::BadField, "am_towers.dat:2: field_ratio \"x\"\n"},
      {"am_towers", "|2||0|", "|2||2|", Finding::BadField, "am_towers.dat:2: tower_ref_switch \"2\"\n"},
      {"facility", "|550.0|AM|", "|550.0|FM|", Finding::OtherService, "facility.dat:2: service \"FM\"\n"},
      {"facility", "|550.0|", "|555.0|", Finding::OffRaster,
       "am_ant_sys.dat:2: WQAA, 555 kHz\nam_ant_sys.dat:3: WQAA, 555 kHz\n"},
      {"facility", "LICEN", "LICAN", Finding::NotOnAir,
       "am_ant_sys.dat:2: WQAA, status LICAN\nam_ant_sys.dat:3: WQAA, status LICAN\n"},
      {"facility", "WQAA", "", Finding::NotOnAir,
       "am_ant_sys.dat:2: call sign \"\"\nam_ant_sys.dat:3: call sign \"\"\n"},
      {"am_towers", "|2||0|", "|1||0|", Finding::Superseded, "am_towers.dat:2: tower 1\n"},
  };
  for (const auto& [table, from, to, finding, example] : cases) {
    const TextImport import = ImportChanged(table, from, to);
    EXPECT_EQ(import.Examples(finding), example) << table << ' ' << from << ' ' << to;
    EXPECT_TRUE(import.stations.size() < 3 || import.report.Of(Finding::TowersUnknown).Rows == 1)
        << from << ' ' << to;
  }
}

TEST(AntennaTables, NumbersAreTakenUpToTheirLimits) {
  const std::string antenna =
      "ant_sys_id=701 application_id=501 hours_operation=D eng_record_type=C am_dom_status=L "
      "lat_deg=40 lat_dir=N lat_min=30 lat_sec=0 lon_deg=90 lon_dir=W lon_min=15 lon_sec=0 ";
  const std::string tower = "ant_sys_id=701 ";
  const struct {
    std::string table, row, column;
    std::vector<std::string> taken, leftOut;
  } cases[] = {
      {"am_ant_sys", antenna, "power", {"0.0001", "10000"}, {"0.00009", "10000.1", "-0", "1e6", "1000001"}},
      {"am_ant_sys", antenna + "power=1 ", "tower_count", {"0", "-0", "1000"}, {"1001", "-1"}},
      {"am_towers", tower + "tower_num=1 ", "field_ratio", {"-0", "1000000"}, {"1000001", "-1"}},
      {"am_towers", tower + "tower_num=1 ", "phasing_deg", {"-360", "-0", "360"}, {"-360.1", "360.1"}},
      {"am_towers", tower + "tower_num=1 ", "orientation_deg", {"-360", "-0", "360"}, {"-360.1", "360.1"}},
      {"am_towers", tower + "tower_num=1 ", "spacing_deg", {"-0", "100000"}, {"100001", "-1"}},
      {"am_towers", tower + "tower_num=1 ", "elec_hgt_deg", {"-0", "100000"}, {"100001", "-1"}},
      {"am_towers",
       tower + "tower_num=1 top_loaded_switch=1 ",
       "topload_a",
       {"-0", "100000"},
       {"100001", "-1"}},
      {"am_towers", tower, "tower_num", {"1", "1000"}, {"0", "-0", "1001"}},
      {"facility", "fac_service=AM ", "facility_id", {"1", "4294967295"}, {"0", "-0", "4294967296", "1.5"}},
  };
  for (const auto& of : cases) {
    const auto badFields = [&](const std::string& value) {
      auto texts = SampleTables(Order::A, true);
      texts.emplace_back("more",
                         TableText{of.table, Order::A, true, {of.row + of.column + '=' + value}}.Text());
      return ImportTexts(texts).report.Of(Finding::BadField).Rows;
    };
    for (const std::string& value : of.taken) EXPECT_EQ(badFields(value), 0) << of.column << ' ' << value;
    for (const std::string& value : of.leftOut) EXPECT_EQ(badFields(value), 1) << of.column << ' ' << value;
    EXPECT_EQ(badFields("nan"), 1) << of.column;
  }
}

// The tables of the current system go by their header.
const std::string kFacilities =
    "active_ind|callsign|callsign_effective_date|community_served_city|community_served_state|country_code|"
    "facility_id|facility_status|frequency|latest_filing_version_id|service_code|^|\n";
const std::string kAntennas =
    "aapp_application_id|active_ind|am_antenna_record_id|hours_operation|lat_deg|lat_dir|lat_min|lat_sec|"
    "lon_deg|lon_dir|lon_min|lon_sec|power|tower_count|^|\n";
const std::string kTowers =
    "active_ind|am_antenna_record_id|tower_num|field_ratio|tower_phasing|tower_spacing|tower_orientation|"
    "tower_ref_ind|^|\n";

TEST(AntennaTables, TablesOfTheCurrentSystemMakeAStation) {
  const TextImport import = ImportTexts({
      {"f", kFacilities + "Y|WQAA|2001|BRAVO|IL|US|901|LICEN|550|ab12|AM|^|\n"
                          "N|WQAA|1999|ALPHA|IA|US|901|LICEN|540|ab11|AM|^|\n"},
      {"a", kAntennas + "ab12|Y|cd34|D|40|N|30|0|90|W|15|0|5.0|2|^|\n"},
      {"t", kTowers + "Y|cd34|1|1.0|0|0|0|0|^|\nY|cd34|2|0.5|-90|90|45|0|^|\n"},
      {"without", Replaced(kTowers, "tower_phasing", "tower_current")},
  });
  ASSERT_EQ(import.stations.size(), 1U) << ReportText(import.report);
  EXPECT_EQ(import.stations.front().Names.City(), "BRAVO");
  ASSERT_EQ(import.stations.front().Towers->size(), 2U);
  EXPECT_EQ(import.stations.front().Towers->at(1).Bearing, 45);
  EXPECT_EQ(import.report.Refusals().front().Reason,
            "is the app_am_tower table, but without a column for phasing_deg");
}

TEST(AntennaTables, WhatALaterFileNoLongerHasInForceIsGone) {
  const auto stations = [](const std::string& name, const std::string& later) {
    NamedTexts texts = SampleTables(Order::A, true);
    texts.emplace_back(name, later);
    return ImportTexts(texts).Hours();
  };
  const std::string antennas = SampleTables(Order::A, true)[0].second;
  const std::string header = antennas.substr(0, antennas.find('\n') + 1);
  const std::string day =
      antennas.substr(header.size(), antennas.find('\n', header.size()) + 1 - header.size());
  ASSERT_EQ(stations("again", header + day), "D3N1U1");
  const std::string archived = Replaced(day, "|3|C|", "|3|A|");
  EXPECT_EQ(stations("archived", header + archived), "N1U1");
  EXPECT_EQ(stations("both", header + archived + day), "D3N1U1");
  EXPECT_EQ(stations("both", header + day + archived), "D3N1U1") << "in one file it has another meaning";
  EXPECT_EQ(stations("presunrise", header + Replaced(day, "|D|", "|P|")), "N1U1");

  EXPECT_EQ(stations("antenna", kAntennas + "501|N|701|D|40|N|30|0|90|W|15|0|5.0|2|^|\n"), "N1U1");
  EXPECT_EQ(stations("towers", kTowers + "N|701|1|1.0|0|0|0|0|^|\n"), "D0N1U1");
  EXPECT_EQ(stations("facility", kFacilities + "N|WQAA|2001|BRAVO|IL|US|901|LICEN|550|501|AM|^|\n"), "U1");
}

TEST(AntennaTables, AnArrayThatIsNotWholeIsTakenWithoutItsPattern) {
  const TextImport import = ImportChanged("am_towers", "701|", "799|");
  EXPECT_EQ(import.Examples(Finding::TowersUnknown), "am_ant_sys.dat:2: WQAA D, 2 of 3 towers\n");
  EXPECT_EQ(import.report.Of(Finding::NotReferred).Rows, 3);
  EXPECT_TRUE(
      import.files.at("550x.dat")
          .starts_with(
              "550, WQAA, BRAVO                   , IL  , United States, D, 40.5, 90.25, 5,-,-, 0\r\n550,"));
}

TEST(AntennaTables, CodesAndHeights) {
  EXPECT_EQ(ImportChanged("am_ant_sys", "|D|40|N|", "|R|40|N|").stations[1].Hours,
            Hours::Critical);  // after N
  EXPECT_EQ(ImportChanged("facility", "BRAVO", "A\\|B").stations.front().Names.City(), "A|B");
  const auto height = [](const char* to) {
    return ImportChanged("am_towers", "|1|80|10|||", to).stations.back().Towers->front().Height;
  };
  EXPECT_EQ(height("|2|||70|15|"), 85);
  EXPECT_EQ(height("|1|||70|15|"), 85);
  EXPECT_EQ(height("|0|80|10|||"), 0);
}

}  // namespace
}  // namespace kestrel
