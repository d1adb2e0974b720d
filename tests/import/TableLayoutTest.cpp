#include "import/read/TableLayout.h"

#include <gtest/gtest.h>

#include "ImportTesting.h"

namespace kestrel {
namespace {

std::string Refusal(const std::string& text) {
  const ImportReport report = ImportTexts({{"file", text}}).report;
  return report.Refusals().empty() ? "read as " + report.Files().front().Content
                                   : report.Refusals().front().Reason;
}

TEST(TableLayout, ColumnsUnderAHeaderMayStandInAnyOrderAmongOthers) {
  const TextImport import = ImportTexts({{"s",
                                          "power|x|ant_sys_id|application_id|hours_operation|lat_sec|lat_min|"
                                          "lat_deg|lat_dir|lon_deg|lon_min|lon_sec|lon_dir|^|\n"
                                          "5.0|?|1|2|U|0|30|40|N|90|15|0|W|^|\n"}});
  EXPECT_TRUE(import.report.Refusals().empty());
  EXPECT_EQ(import.report.Of(Finding::NoStation).Rows, 1);
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

}  // namespace
}  // namespace kestrel
