#include "import/read/AntennaTables.h"

#include <algorithm>

#include "core/Text.h"
#include "import/read/RowFields.h"
#include "import/read/TableRow.h"

namespace kestrel {
namespace {

constexpr double kMostDegrees = 100000;  // of a height or spacing

/// Keeps `row`; an earlier one of its key is left out, and so is a new one beyond `most`.
template <typename Row>
void Keep(KeyedRows<Row>& rows, Row row, std::size_t most, ImportReport& report) {
  Row* const earlier = rows.Find(row.Key());
  if (!earlier) {
    if (rows.size() == most) return report.LeaveOut(row.Row, Finding::NoRoom, KeyText(row.Key()));
    rows.Add(std::move(row));
    return;
  }
  report.LeaveOut(earlier->Row, Finding::Superseded, KeyText(row.Key()));
  *earlier = std::move(row);
}

/// What an earlier file has under `key` is left out, now that this row is there and tells of nothing in its
/// place.
template <typename Row>
void Withdraw(KeyedRows<Row>& rows, typename KeyedRows<Row>::Key key, const TableRow& row,
              ImportReport& report) {
  const Row* const earlier = rows.Find(key);
  if (!earlier || earlier->Row.File == row.Place().File) return;
  report.LeaveOut(earlier->Row, Finding::Superseded, KeyText(key) + ", by a later file");
  rows.Remove(key);
}

/// A later file tells of a whole array anew, even when it has no tower of it in force.
void WithdrawTowers(AntennaTables& tables, const std::string& system, const TableRow& row,
                    ImportReport& report) {
  const TowerRows* const earlier = tables.Towers.Find(system);
  if (!earlier || earlier->Rows.front().Row.File == row.Place().File) return;
  for (const TowerRow& old : earlier->Rows)
    report.LeaveOut(old.Row, Finding::Superseded, "tower " + std::to_string(old.Number));
  tables.TowerRowCount -= earlier->Rows.size();
  tables.Towers.Remove(system);
}

/// Rows of the current system that are no longer in force are left out here.
bool IsInForce(TableRow& row) {
  if (!row.HasColumn("active_ind") || row.Text("active_ind") == "Y") return true;
  row.LeaveOut(Finding::NotLicensed, "active_ind \"" + std::string(row.Text("active_ind")) + '"');
  return false;
}

void ReadAntennaSystem(TableRow& row, bool current, AntennaTables& tables, ImportReport& report) {
  AntennaSystem system;
  system.Row = row.Place();
  const std::string id = row.Key("ant_sys_id");
  system.Texts = PackedTexts<2>({id, row.Key("application_id")});
  system.Current = current;
  const auto withdraw = [&] { Withdraw(tables.Systems, id, row, report); };
  if (!IsInForce(row)) return withdraw();
  if (row.HasColumn("eng_record_type") && row.Text("eng_record_type") != "C") {
    row.LeaveOut(Finding::NotLicensed,
                 "antenna system " + id + ", record type " + std::string(row.Text("eng_record_type")));
    return withdraw();
  }
  const std::string_view hours = row.Text("hours_operation");
  if (hours == "P" || hours == "X") {
    row.LeaveOut(Finding::OtherHours, "antenna system " + id + ", hours " + std::string(hours));
    return withdraw();
  }
  // "R", restricted hours abroad, are critical ones here.
  system.Hours = hours == "R" ? Hours::Critical : HoursOf(hours);
  if (system.Hours == Hours::Other) row.Fail("hours_operation");
  system.DomesticStatus = row.Letter("am_dom_status");
  system.Directional = row.Letter("ant_dir_ind") == 'Y';
  system.TowerCount = static_cast<std::int16_t>(row.Number("tower_count", 0, 1000).value_or(0));
  system.PowerKW = row.Number("power", 0, 1e6).value_or(0);
  system.Position = row.Position();
  if (row.Faulty()) return;
  Keep(tables.Systems, std::move(system), tables.MostRows, report);
}

/// Of a top-loaded tower without a height of its own: the height of its parts.
double ElectricalHeight(TableRow& row) {
  const double height = row.Number("elec_hgt_deg", 0, kMostDegrees).value_or(0);
  const char loaded = row.Letter("top_loaded_switch");
  if (height != 0 || (loaded != '1' && loaded != '2')) return height;
  const auto part = [&](std::string_view column) { return row.Number(column, 0, kMostDegrees).value_or(0); };
  const double single = part("topload_a") + part("topload_b");
  const double sectional = part("topload_c") + part("topload_d");
  if (loaded == '1') return single != 0 ? single : sectional;
  return sectional != 0 ? sectional : single;
}

void ReadTower(TableRow& row, AntennaTables& tables, ImportReport& report) {
  TowerRow tower;
  tower.Row = row.Place();
  const std::string system = row.Key("ant_sys_id");
  if (row.Faulty()) return;
  if (!tables.Systems.Find(system))
    return row.LeaveOut(Finding::NotReferred, "a tower of antenna system " + system);
  if (!IsInForce(row)) return WithdrawTowers(tables, system, row, report);
  row.Key("tower_num");
  tower.Number = static_cast<std::int16_t>(row.Number("tower_num", 1, 1000).value_or(0));
  const auto degrees = [&](std::string_view column, double least, double most) {
    return static_cast<float>(row.Number(column, least, most).value_or(0));
  };
  if (const auto field = row.Number("field_ratio", 0, 1e6)) tower.Field = static_cast<float>(*field);
  tower.Height = static_cast<float>(ElectricalHeight(row));
  tower.Phase = degrees("phasing_deg", -360, 360);
  tower.Spacing = degrees("spacing_deg", 0, kMostDegrees);
  tower.Bearing = degrees("orientation_deg", -360, 360);
  const std::string_view reference = row.Text("tower_ref_switch");
  if (!reference.empty() && reference != "0" && reference != "1") row.Fail("tower_ref_switch");
  tower.FromPrevious = reference == "1";
  if (row.Faulty()) return;

  WithdrawTowers(tables, system, row, report);
  if (tables.TowerRowCount == tables.MostRows)
    return row.LeaveOut(Finding::NoRoom, "a tower of antenna system " + system);
  TowerRows* array = tables.Towers.Find(system);
  if (!array) array = &tables.Towers.Add({PackedTexts<1>({system}), {}});
  std::vector<TowerRow>& towers = array->Rows;
  const auto same = std::find_if(towers.begin(), towers.end(),
                                 [&](const TowerRow& old) { return old.Number == tower.Number; });
  if (same == towers.end()) {
    towers.push_back(tower);
    ++tables.TowerRowCount;
  } else {
    report.LeaveOut(same->Row, Finding::Superseded, "tower " + std::to_string(tower.Number));
    *same = tower;
  }
}

void ReadApplication(TableRow& row, const AntennaTables& tables, KeyedRows<ApplicationRow>& rows,
                     ImportReport& report) {
  ApplicationRow application;
  application.Row = row.Place();
  const std::string id = row.Key("application_id");
  if (row.Faulty()) return;
  const std::vector<std::string_view>& wanted = tables.AntennaApplications;
  if (!std::binary_search(wanted.begin(), wanted.end(), id))
    return row.LeaveOut(Finding::NotReferred, "application " + id);
  application.Id = PackedTexts<1>({id});
  if (!IsInForce(row)) return Withdraw(rows, id, row, report);
  application.Facility = row.Facility();
  application.DomesticStatus = row.Letter("am_dom_status");
  const std::string_view service = row.Text("app_service");
  if (!service.empty() && service != "AM")
    return row.LeaveOut(Finding::OtherService, "service \"" + std::string(service) + '"');
  if (row.Faulty()) return;
  Keep(rows, std::move(application), tables.MostRows, report);
}

void ReadFacility(TableRow& row, AntennaTables& tables, ImportReport& report) {
  const std::string_view service = row.Text("fac_service");
  if (service != "AM") return row.LeaveOut(Finding::OtherService, "service \"" + std::string(service) + '"');
  const FacilityId id = row.Facility();
  if (!IsInForce(row)) return Withdraw(tables.Facilities, id, row, report);
  FacilityRow facility;
  facility.Row = row.Place();
  facility.Facility = id;
  if (id == 0) row.Fail("facility_id");
  facility.Names =
      StationNames(UpperCase(MendedName(row.Text("fac_callsign"))), MendedName(row.Text("comm_city")),
                   MendedName(row.Text("comm_state")), row.Text("fac_country"));
  facility.Frequency = row.Number("fac_frequency", 0, 1e6).value_or(0);
  facility.Texts =
      PackedTexts<2>({Columns(row.Text("fac_status"), 1, 50), row.OptionalKey("application_id")});
  if (row.Faulty()) return;
  Keep(tables.Facilities, std::move(facility), tables.MostRows, report);
}

}  // namespace

void ReadAntennaTable(LineStream& lines, int file, const TableLayout& layout, AntennaTables& tables,
                      NewestDate& dates, ImportReport& report) {
  TableRow row(lines, file, layout, report);
  while (row.Next()) {
    dates.See(ColumnDate(row.LastChange()));
    switch (layout.Kind) {
      case TableKind::AntennaSystems:
        ReadAntennaSystem(row, layout.Current, tables, report);
        break;
      case TableKind::Towers:
        ReadTower(row, tables, report);
        break;
      case TableKind::EngineeringData:
        ReadApplication(row, tables, tables.Engineering, report);
        break;
      case TableKind::Applications:
        ReadApplication(row, tables, tables.Applications, report);
        break;
      case TableKind::Facilities:
        ReadFacility(row, tables, report);
        break;
      case TableKind::Augmentations:
        row.LeaveOut(Finding::NotUsed, "antenna system " + std::string(row.Text("ant_sys_id")));
        break;
    }
  }
}

void SortAntennaApplications(AntennaTables& tables) {
  std::vector<std::string_view>& applications = tables.AntennaApplications;
  applications.clear();
  applications.reserve(tables.Systems.size());
  for (const AntennaSystem& system : tables.Systems) applications.push_back(system.Application());
  std::sort(applications.begin(), applications.end());
}

}  // namespace kestrel
