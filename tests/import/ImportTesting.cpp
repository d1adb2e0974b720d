#include "ImportTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <memory>
#include <sstream>

#include "MemoryStream.h"
#include "import/merge/CallIndex.h"
#include "import/merge/Merge.h"
#include "import/merge/StationFiles.h"
#include "import/read/TableColumns.h"

namespace kestrel {
namespace {

constexpr Date kToday(std::chrono::year(2026), std::chrono::month(8), std::chrono::day(2));

}  // namespace

std::string TableText::Text() const {
  const auto& known = KnownTables();
  const auto table =
      std::find_if(known.begin(), known.end(), [&](const TableColumns& t) { return t.Name == name; });
  std::vector<std::string> columns(table->Columns.begin(), table->Columns.end());
  if (order == Order::B) std::sort(columns.begin(), columns.end());
  std::string text;
  if (header) {
    for (const std::string& column : columns) text += column + '|';
    text += "^|\n";
  }
  for (const std::string& row : rows) {
    std::map<std::string, std::string> values;
    std::istringstream parts(row);
    for (std::string part; parts >> part;) {
      const std::size_t equals = part.find('=');
      values[part.substr(0, equals)] = part.substr(equals + 1);
    }
    for (const std::string& column : columns) text += values[column] + '|';
    text += "^|\n";
  }
  return text;
}

NamedTexts SampleTables(Order order, bool header) {
  const std::string date = " last_update_date=01/02/2024";
  const std::string home =
      " ant_mode=DA2 eng_record_type=C am_dom_status=L"
      " lat_deg=40 lat_dir=N lat_min=30 lat_sec=0.0 lon_deg=90 lon_dir=W lon_min=15 lon_sec=0.0" +
      date;
  const std::string abroad =
      " ant_mode=ND1 eng_record_type=C"
      " lat_deg=31 lat_dir=N lat_min=44 lat_sec=10.5 lon_deg=106 lon_dir=W lon_min=29 lon_sec=5.25" +
      date;
  const std::string tower = " elec_hgt_deg=90 tower_ref_switch=0" + date;
  const auto table = [&](const std::string& name, std::vector<std::string> rows) {
    return std::pair(name + ".dat", TableText{name, order, header, std::move(rows)}.Text());
  };
  return {
      table(
          "am_ant_sys",
          {"ant_sys_id=701 application_id=501 hours_operation=D power=5.0 tower_count=3 ant_dir_ind=Y" + home,
           "ant_sys_id=702 application_id=501 hours_operation=N power=0.5 tower_count=1 ant_dir_ind=N" + home,
           "ant_sys_id=703 application_id=502 hours_operation=U power=50.0 tower_count=1" + abroad}),
      table(
          "am_towers",
          {"ant_sys_id=701 tower_num=2 field_ratio=0.9 phasing_deg=-90 spacing_deg=90 orientation_deg=40" +
               tower,
           "ant_sys_id=701 tower_num=1 field_ratio=1.0 phasing_deg=0 spacing_deg=0 orientation_deg=0" + tower,
           "ant_sys_id=701 tower_num=3 field_ratio=0.7 phasing_deg=15 spacing_deg=120 orientation_deg=130 "
           "elec_hgt_deg=95.5 tower_ref_switch=1" +
               date,
           "ant_sys_id=702 tower_num=1 field_ratio=1.0 elec_hgt_deg=90" + date,
           "ant_sys_id=703 tower_num=1 field_ratio=0 elec_hgt_deg=0 top_loaded_switch=1 topload_a=80 "
           "topload_b=10" +
               date}),
      table("am_eng_data", {"application_id=501 facility_id=901 am_dom_status=L" + date,
                            "application_id=502 facility_id=902" + date}),
      table("facility",
            {"facility_id=901 fac_callsign=WQAA fac_country=US fac_frequency=550.0 fac_service=AM "
             "fac_status=LICEN comm_city=BRAVO comm_state=IL",
             "facility_id=902 fac_callsign=XQBB fac_country=MX fac_frequency=800.0 fac_service=AM "
             "comm_city=CHARLIE"})};
}

std::string Replaced(std::string text, std::string_view from, std::string_view to, std::string_view behind) {
  const std::size_t at = text.find(from, text.find(behind));
  EXPECT_NE(at, std::string::npos) << from;
  return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

std::string TextImport::Examples(Finding finding) const {
  std::string all;
  for (const std::string& example : report.Of(finding).Examples) all += example + '\n';
  return all;
}

std::string TextImport::Hours(std::string_view call) const {
  std::string text;
  for (const Station& station : stations)
    if (call.empty() || station.Names.CallSign() == call)
      text += HoursLetter(station.Hours) + std::to_string(station.Towers ? station.Towers->size() : 0);
  return text;
}

std::vector<SourceFile> SourceFiles(const NamedTexts& texts) {
  std::vector<SourceFile> files;
  for (const auto& [name, text] : texts)
    files.push_back({name, text.size(), [kept = std::make_shared<std::string>(text)] {
                       return Result<std::unique_ptr<ByteStream>>(std::make_unique<MemoryStream>(*kept));
                     }});
  return files;
}

TextImport ImportTexts(const NamedTexts& texts, const ImportOptions& options) {
  TextImport import;
  Readings readings(kToday);
  EXPECT_FALSE(ReadSourceFiles(SourceFiles(texts), options, readings, import.report));
  import.stations = MergeStations(std::move(readings.Amq), readings.Tables, options, import.report);
  CountStations(import.stations, import.report);
  MakeStationFiles(import.stations, "A test", import.report, [&](const std::string& name, std::string bytes) {
    import.files[name] = std::move(bytes);
  });
  ExpectCountsAddUp(import.report);
  return import;
}

TextImport ImportChanged(const std::string& table, std::string_view from, std::string_view to,
                         const ImportOptions& options) {
  NamedTexts texts = SampleTables(Order::A, true);
  for (auto& [name, text] : texts)
    if (name == table + ".dat") text = Replaced(text, from, to, "\n");
  return ImportTexts(texts, options);
}

void ExpectCountsAddUp(const ImportReport& report) {
  for (const ImportReport::File& file : report.Files())
    EXPECT_EQ(file.Rows, file.Taken + file.LeftOut) << file.Name;
  int reasons = 0;
  for (std::size_t i = 0; i <= static_cast<std::size_t>(Finding::LastLeftOut); ++i)
    reasons += report.Of(static_cast<Finding>(i)).Rows;
  EXPECT_EQ(report.Total().LeftOut, reasons);
}

}  // namespace kestrel
