#include "import/TableLayout.h"

#include <gtest/gtest.h>

#include "ImportTesting.h"

namespace kestrel {
namespace {

std::string Refusal(const std::string& text) {
  const ImportReport report = ImportTexts({{"file", text}}).report;
  return report.Refusals().empty() ? "read as " + report.Files().front().content
                                   : report.Refusals().front().reason;
}

TEST(TableLayout, ColumnsUnderAHeaderMayStandInAnyOrderAmongOthers) {
  const TextImport import = ImportTexts({{"s",
                                          "power|x|ant_sys_id|application_id|hours_operation|lat_sec|lat_min|"
                                          "lat_deg|lat_dir|lon_deg|lon_min|lon_sec|lon_dir|^|\n"
                                          "5.0|?|1|2|U|0|30|40|N|90|15|0|W|^|\n"}});
  EXPECT_TRUE(import.report.Refusals().empty());
  EXPECT_EQ(import.report.Of(Finding::NoStation).rows, 1);
}

TEST(TableLayout, WhatIsNoTableIsRefusedWithTheReason) {
  const std::string start = "is neither an AM Query list nor an antenna table: ";
  EXPECT_EQ(Refusal("Notes on the files\nby somebody\n"),
            start + "no row of it ends in |^|, as those of the antenna tables do");
  EXPECT_EQ(Refusal("1|2|3|^|\n"), start + "rows of 3 columns that are none of the antenna tables'");
  EXPECT_EQ(Refusal("|a|b|c|\n|d|e|f|\n"), start + "rows of 3 fields, 31 to 33 expected");
  EXPECT_EQ(Refusal("ant_sys_id|tower_num|field_ratio|^|\n1|1|1|^|\n"),
            "is the am_towers table, but without a column for phasing_deg, spacing_deg, orientation_deg, "
            "tower_ref_switch");
  EXPECT_EQ(Refusal("active_ind|something|^|\nY|1|^|\n"), start + "a table that the importer does not use");
  EXPECT_EQ(Refusal(""), "is empty");
  EXPECT_EQ(Refusal(std::string(200'000, '\0')), "holds nothing but blanks or zeros");
  EXPECT_EQ(Refusal("PK\x03\x04..."), "is a zip inside a zip; unpack the outer one first");
  EXPECT_EQ(Refusal("\x1F\x8B..."), "is packed by gzip; unpack it first");
  EXPECT_EQ(Refusal("\xFF\xFEq"), "is UTF-16 text; save it as UTF-8");
  EXPECT_EQ(Refusal("<html><body>AM Query</body></html>"),
            "is a web page without rows; save the text list itself");
}

TEST(TableLayout, TablesOfTheCurrentSystemGoByTheirHeader) {
  const std::string facility =
      "active_ind|callsign|callsign_effective_date|community_served_city|community_served_state|country_code|"
      "facility_id|"
      "facility_status|frequency|latest_filing_version_id|service_code|^|\n"
      "Y|WQAA|2001|BRAVO|IL|US|901|LICEN|550|ab12|AM|^|\nN|WQAA|1999|ALPHA|IA|US|901|LICEN|540|ab11|AM|^|\n";
  const std::string antenna =
      "aapp_application_id|active_ind|am_antenna_record_id|hours_operation|lat_deg|lat_dir|lat_min|lat_sec|"
      "lon_deg|lon_dir|lon_min|"
      "lon_sec|power|tower_count|^|\nab12|Y|cd34|D|40|N|30|0|90|W|15|0|5.0|2|^|\n";
  const std::string tower =
      "active_ind|am_antenna_record_id|tower_num|field_ratio|tower_phasing|tower_spacing|tower_orientation|"
      "tower_ref_ind|^|\n"
      "Y|cd34|1|1.0|0|0|0|0|^|\nY|cd34|2|0.5|-90|90|45|0|^|\n";
  const TextImport import = ImportTexts({{"f", facility}, {"a", antenna}, {"t", tower}});
  ASSERT_EQ(import.stations.size(), 1U) << ReportText(import.report);
  EXPECT_EQ(import.stations.front().names.City(), "BRAVO");
  ASSERT_EQ(import.stations.front().towers->size(), 2U);
  EXPECT_EQ(import.stations.front().towers->at(1).bearing, 45);

  EXPECT_EQ(Refusal(Replaced(tower, "tower_phasing", "tower_current")),
            "is the app_am_tower table, but without a column for phasing_deg");
}

}  // namespace
}  // namespace kestrel
