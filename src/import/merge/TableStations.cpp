#include "import/merge/TableStations.h"

#include <algorithm>
#include <deque>

#include "data/StationLineText.h"
#include "import/Countries.h"
#include "import/merge/TowerArray.h"

namespace kestrel {
namespace {

bool Earlier(RowPlace a, RowPlace b) {
  return std::tie(a.File, a.Line) < std::tie(b.File, b.Line);
}

std::string Named(const AntennaSystem& system) {
  return "antenna system " + std::string(system.Key());
}

/// "WAAA D", or with a fault "WAAA D, 2 of 3 towers".
std::string Named(const Station& station, const std::string& fault) {
  return std::string(station.Names.CallSign()) + ' ' + HoursLetter(station.Hours) +
         (fault.empty() ? "" : ", " + fault);
}

}  // namespace

TableStations::TableStations(const AntennaTables& tables, const ImportOptions& options, ImportReport& report)
    : tables_(tables), options_(options), report_(report) {
  for (const FacilityRow& facility : tables.Facilities)
    if (!facility.Application().empty()) byApplication_.push_back(&facility);
  std::sort(byApplication_.begin(), byApplication_.end(), [](const FacilityRow* a, const FacilityRow* b) {
    return std::tuple(a->Application(), a->Facility) < std::tuple(b->Application(), b->Facility);
  });

  systems_.reserve(tables.Systems.size());
  for (const AntennaSystem& row : tables.Systems) systems_.push_back({&row});
  std::sort(systems_.begin(), systems_.end(),
            [](const System& a, const System& b) { return Earlier(a.row->Row, b.row->Row); });
  std::erase_if(systems_, [this](System& system) {
    if (Join(system)) return false;
    report_.LeaveOut(system.row->Row, Finding::NotLicensed, Named(*system.row));
    return true;
  });
  BuildIndexes();
}

bool TableStations::Join(System& system) const {
  const std::string_view application = system.row->Application();
  const ApplicationRow* engineering = tables_.Engineering.Find(application);
  const std::optional<Standing> standing = StandingOf(*system.row, engineering);
  if (!standing) return false;

  system.standing = *standing;
  if (engineering) system.facility = engineering->Facility;
  if (const ApplicationRow* row = tables_.Applications.Find(application); row && system.facility == 0)
    system.facility = row->Facility;
  const auto current = std::lower_bound(
      byApplication_.begin(), byApplication_.end(), application,
      [](const FacilityRow* row, std::string_view wanted) { return row->Application() < wanted; });
  if (current != byApplication_.end() && (*current)->Application() == application)
    system.facility = (*current)->Facility;
  system.station = tables_.Facilities.Find(system.facility);
  return true;
}

void TableStations::BuildIndexes() {
  byFacility_.reserve(systems_.size());
  byCall_.reserve(systems_.size());
  for (std::uint32_t i = 0; i < systems_.size(); ++i) {
    if (systems_[i].facility != 0) byFacility_.push_back(i);
    if (systems_[i].station) byCall_.push_back(i);
  }
  std::stable_sort(byFacility_.begin(), byFacility_.end(),
                   [this](auto a, auto b) { return systems_[a].Key() < systems_[b].Key(); });
  std::stable_sort(byCall_.begin(), byCall_.end(),
                   [this](auto a, auto b) { return systems_[a].Call() < systems_[b].Call(); });
}

/// Nothing for a record that is neither in force nor wanted.
std::optional<TableStations::Standing> TableStations::StandingOf(const AntennaSystem& system,
                                                                 const ApplicationRow* engineering) const {
  if (system.Current) return Standing::Licensed;
  const char second = engineering ? engineering->DomesticStatus : system.DomesticStatus;
  if (system.DomesticStatus == 'L' && second == 'L') return Standing::Licensed;
  if (system.DomesticStatus == 0 && second == 0) return Standing::Abroad;
  if (system.DomesticStatus == 'C' && options_.IncludePermits) return Standing::Permit;
  return std::nullopt;
}

std::optional<std::size_t> TableStations::Find(FacilityId facility, Hours hours, bool permit) const {
  const FacilityHours key(facility, hours);
  std::optional<std::size_t> found;
  auto at = std::lower_bound(byFacility_.begin(), byFacility_.end(), key,
                             [this](auto i, const auto& wanted) { return systems_[i].Key() < wanted; });
  for (; at != byFacility_.end() && systems_[*at].Key() == key; ++at)
    if ((systems_[*at].standing == Standing::Permit) == permit) found = *at;
  return found;
}

std::optional<std::size_t> TableStations::FindByCall(const Station& station,
                                                     const std::vector<FacilityId>& others) const {
  const std::tuple<std::string_view, int, Hours> key(station.Names.CallSign(), station.Channel,
                                                     station.Hours);
  std::optional<std::size_t> found;
  auto at = std::lower_bound(byCall_.begin(), byCall_.end(), key,
                             [this](auto i, const auto& wanted) { return systems_[i].Call() < wanted; });
  for (; at != byCall_.end() && systems_[*at].Call() == key; ++at) {
    const System& system = systems_[*at];
    if (std::binary_search(others.begin(), others.end(), system.facility) ||
        (system.standing == Standing::Permit) != station.Permit)
      continue;
    if (found && systems_[*found].facility != system.facility) return std::nullopt;
    found = *at;
  }
  return found;
}

std::size_t TableStations::IndexOf(RowPlace row) const {
  const auto at =
      std::lower_bound(systems_.begin(), systems_.end(), row,
                       [](const System& s, RowPlace wanted) { return Earlier(s.row->Row, wanted); });
  return static_cast<std::size_t>(at - systems_.begin());
}

bool TableStations::IsOnAir(const System& system) const {
  const std::string_view status = system.station->Status();
  const std::string_view country = system.station->Names.Country();
  if (CountryCode(country) != "US" && !country.empty())
    return system.standing == Standing::Abroad || system.row->Current;
  if (status == "LICEN" || (status == "LICSL" && options_.IncludeSilent))
    return system.standing != Standing::Abroad;
  return system.standing == Standing::Permit && status.starts_with("CP");
}

std::optional<Fault> TableStations::MakeStation(std::size_t index, Station& station) const {
  const System& joined = systems_[index];
  const AntennaSystem& system = *joined.row;
  if (joined.facility == 0)
    return Fault{Finding::NoStation, Named(system) + ", application " + std::string(system.Application())};
  if (!joined.station)
    return Fault{Finding::NoStation, Named(system) + ", facility " + std::to_string(joined.facility)};
  const FacilityRow& facility = *joined.station;
  const StationNames& names = facility.Names;
  const std::string callSign(names.CallSign());
  if (!IsCallSign(callSign)) return Fault{Finding::NotOnAir, "call sign \"" + callSign + '"'};
  if (!IsOnAir(joined))
    return Fault{Finding::NotOnAir, callSign + ", status " +
                                        std::string(facility.Status().empty() ? "blank" : facility.Status())};
  if (!IsOnRaster(facility.Frequency))
    return Fault{Finding::OffRaster, callSign + ", " + DecimalText(facility.Frequency, 3) + " kHz"};
  if (const std::string fault = PowerFault(system.PowerKW); !fault.empty())
    return Fault{Finding::BadField, callSign + ", " + fault};
  if (!IsInAmericas(system.Position))
    return Fault{Finding::OutsideAmericas, callSign + ", " + std::string(names.City())};

  const std::string_view country = names.Country().empty() ? "US" : CountryCode(names.Country());
  if (!options_.WantsCountry(country))
    return Fault{Finding::OtherCountry, callSign + ", " + std::string(country)};
  station.Row = system.Row;
  station.Facility = joined.facility;
  station.Names = StationNames(callSign, names.City(),
                               names.State().empty() && country != "US" ? "-" : names.State(), country);
  station.Channel = static_cast<std::int16_t>(facility.Frequency);
  station.Hours = system.Hours;
  station.Position = system.Position;
  station.PowerKW = system.PowerKW;
  station.Permit = joined.standing == Standing::Permit;
  station.Directional = system.Directional || system.TowerCount > 1;
  return std::nullopt;
}

void TableStations::UseFor(std::size_t index, Station& station) {
  System& joined = systems_[index];
  const AntennaSystem& system = *joined.row;
  if (!joined.used) report_.Take(system.Row);
  joined.used = true;

  const TowerRows* towers = tables_.Towers.Find(system.Key());
  if (!towers) {
    const std::string none = "0 of " + std::to_string(system.TowerCount) + " towers";
    return DoWithoutArray(station, Finding::TowersUnknown, system.TowerCount > 1 ? none : "");
  }
  TowerArray array = ResolveTowers(towers->Rows, system.TowerCount);
  const std::string count = std::to_string(array.Towers.size()) + " towers";
  if (!array.Fault.empty()) return DoWithoutArray(station, Finding::TowersUnknown, array.Fault);
  if (array.TooMany) return DoWithoutArray(station, Finding::TooManyTowers, count);

  TakeTowers(joined, *towers, array.Fieldless);
  if (!station.Directional && array.Towers.size() > 1)
    report_.Remark(station.Row, Finding::TowersDisagree, Named(station, count));
  array.Towers.shrink_to_fit();
  station.Towers = std::make_shared<const std::vector<Tower>>(std::move(array.Towers));
}

void TableStations::TakeTowers(System& system, const TowerRows& towers,
                               const std::vector<RowPlace>& fieldless) {
  if (system.hasTowers) return;
  system.hasTowers = true;
  for (const TowerRow& tower : towers.Rows) {
    const bool hasNoField = std::any_of(fieldless.begin(), fieldless.end(),
                                        [&](RowPlace row) { return row.Line == tower.Row.Line; });
    if (hasNoField)
      report_.LeaveOut(tower.Row, Finding::NoField,
                       Named(*system.row) + ", tower " + std::to_string(tower.Number));
    else
      report_.Take(tower.Row);
  }
}

void TableStations::UseNothingFor(Station& station) {
  DoWithoutArray(station, Finding::TowersUnknown, {});
}

/// A non-directional station radiates all around whatever the tables lack: one tower. Of a directional one
/// the pattern stays unknown.
void TableStations::DoWithoutArray(Station& station, Finding why, const std::string& fault) {
  if (!station.Directional) {
    static const SharedTowers kOne = std::make_shared<const std::vector<Tower>>(1);
    station.Towers = kOne;
    if (why == Finding::TowersUnknown) why = Finding::TowersPassedOver;
    if (fault.empty()) return;
  }
  report_.Remark(station.Row, why, Named(station, fault));
}

void TableStations::CloseAccounts() {
  std::vector<bool> engineering(tables_.Engineering.size());
  std::vector<bool> applications(tables_.Applications.size());
  std::vector<bool> facilities(tables_.Facilities.size());
  std::vector<bool> towers(tables_.Towers.size());
  const auto mark = [](std::vector<bool>& used, std::optional<std::size_t> index) {
    if (index) used[*index] = true;
  };
  for (const System& system : systems_) {
    if (system.hasTowers) mark(towers, tables_.Towers.IndexOf(system.row->Key()));
    if (!system.used) continue;
    mark(engineering, tables_.Engineering.IndexOf(system.row->Application()));
    mark(applications, tables_.Applications.IndexOf(system.row->Application()));
    mark(facilities, tables_.Facilities.IndexOf(system.facility));
  }

  const auto close = [this](const auto& rows, const std::vector<bool>& used, const std::string& what) {
    std::deque<std::uint32_t> unused;
    for (std::uint32_t i = 0; i < rows.size(); ++i) {
      if (used[i])
        report_.Take(rows[i].Row);
      else
        unused.push_back(i);
    }
    std::sort(unused.begin(), unused.end(),
              [&](auto a, auto b) { return Earlier(rows[a].Row, rows[b].Row); });
    for (const auto i : unused)
      report_.LeaveOut(rows[i].Row, Finding::NotReferred, what + KeyText(rows[i].Key()));
  };
  close(tables_.Facilities, facilities, "facility ");
  close(tables_.Engineering, engineering, "application ");
  close(tables_.Applications, applications, "application ");

  std::deque<std::pair<RowPlace, std::uint32_t>> unused;
  for (std::uint32_t i = 0; i < tables_.Towers.size(); ++i) {
    if (towers[i]) continue;
    for (const TowerRow& tower : tables_.Towers[i].Rows) unused.emplace_back(tower.Row, i);
  }
  std::sort(unused.begin(), unused.end(),
            [](const auto& a, const auto& b) { return Earlier(a.first, b.first); });
  for (const auto& [row, i] : unused)
    report_.LeaveOut(row, Finding::NotReferred,
                     "a tower of antenna system " + std::string(tables_.Towers[i].Key()));
}

}  // namespace kestrel
