#include "import/TableStations.h"

#include <algorithm>
#include <deque>

#include "data/StationLineText.h"
#include "import/Countries.h"
#include "import/TowerArray.h"

namespace kestrel {
namespace {

bool Earlier(RowPlace a, RowPlace b) {
  return std::tie(a.file, a.line) < std::tie(b.file, b.line);
}

std::string Named(const AntennaSystem& system) {
  return "antenna system " + std::string(system.Key());
}

/// "WAAA D", or with a fault "WAAA D, 2 of 3 towers".
std::string Named(const Station& station, const std::string& fault) {
  return std::string(station.names.CallSign()) + ' ' + HoursLetter(station.hours) +
         (fault.empty() ? "" : ", " + fault);
}

}  // namespace

TableStations::TableStations(const AntennaTables& tables, const ImportOptions& options, ImportReport& report)
    : tables_(tables), options_(options), report_(report) {
  for (const FacilityRow& facility : tables.facilities)
    if (!facility.Application().empty()) byApplication_.push_back(&facility);
  std::sort(byApplication_.begin(), byApplication_.end(), [](const FacilityRow* a, const FacilityRow* b) {
    return std::tuple(a->Application(), a->facility) < std::tuple(b->Application(), b->facility);
  });

  systems_.reserve(tables.systems.size());
  for (const AntennaSystem& row : tables.systems) systems_.push_back({&row});
  std::sort(systems_.begin(), systems_.end(),
            [](const System& a, const System& b) { return Earlier(a.row->row, b.row->row); });
  std::erase_if(systems_, [this](System& system) {
    if (Join(system)) return false;
    report_.LeaveOut(system.row->row, Finding::NotLicensed, Named(*system.row));
    return true;
  });
  BuildIndexes();
}

bool TableStations::Join(System& system) const {
  const std::string_view application = system.row->Application();
  const ApplicationRow* engineering = tables_.engineering.Find(application);
  const std::optional<Standing> standing = StandingOf(*system.row, engineering);
  if (!standing) return false;

  system.standing = *standing;
  if (engineering) system.facility = engineering->facility;
  if (const ApplicationRow* row = tables_.applications.Find(application); row && system.facility == 0)
    system.facility = row->facility;
  const auto current = std::lower_bound(
      byApplication_.begin(), byApplication_.end(), application,
      [](const FacilityRow* row, std::string_view wanted) { return row->Application() < wanted; });
  if (current != byApplication_.end() && (*current)->Application() == application)
    system.facility = (*current)->facility;
  system.station = tables_.facilities.Find(system.facility);
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
  if (system.current) return Standing::Licensed;
  const char second = engineering ? engineering->domesticStatus : system.domesticStatus;
  if (system.domesticStatus == 'L' && second == 'L') return Standing::Licensed;
  if (system.domesticStatus == 0 && second == 0) return Standing::Abroad;
  if (system.domesticStatus == 'C' && options_.includePermits) return Standing::Permit;
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
  const std::tuple<std::string_view, int, Hours> key(station.names.CallSign(), station.channel,
                                                     station.hours);
  std::optional<std::size_t> found;
  auto at = std::lower_bound(byCall_.begin(), byCall_.end(), key,
                             [this](auto i, const auto& wanted) { return systems_[i].Call() < wanted; });
  for (; at != byCall_.end() && systems_[*at].Call() == key; ++at) {
    const System& system = systems_[*at];
    if (std::binary_search(others.begin(), others.end(), system.facility) ||
        (system.standing == Standing::Permit) != station.permit)
      continue;
    if (found && systems_[*found].facility != system.facility) return std::nullopt;
    found = *at;
  }
  return found;
}

std::size_t TableStations::IndexOf(RowPlace row) const {
  const auto at =
      std::lower_bound(systems_.begin(), systems_.end(), row,
                       [](const System& s, RowPlace wanted) { return Earlier(s.row->row, wanted); });
  return static_cast<std::size_t>(at - systems_.begin());
}

bool TableStations::IsOnAir(const System& system) const {
  const std::string_view status = system.station->Status();
  const std::string_view country = system.station->names.Country();
  if (CountryCode(country) != "US" && !country.empty())
    return system.standing == Standing::Abroad || system.row->current;
  if (status == "LICEN" || (status == "LICSL" && options_.includeSilent))
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
  const StationNames& names = facility.names;
  const std::string callSign(names.CallSign());
  if (!IsCallSign(callSign)) return Fault{Finding::NotOnAir, "call sign \"" + callSign + '"'};
  if (!IsOnAir(joined))
    return Fault{Finding::NotOnAir, callSign + ", status " +
                                        std::string(facility.Status().empty() ? "blank" : facility.Status())};
  if (!IsOnRaster(facility.frequency))
    return Fault{Finding::OffRaster, callSign + ", " + DecimalText(facility.frequency, 3) + " kHz"};
  if (const std::string fault = PowerFault(system.powerKW); !fault.empty())
    return Fault{Finding::BadField, callSign + ", " + fault};
  if (!IsInAmericas(system.position))
    return Fault{Finding::OutsideAmericas, callSign + ", " + std::string(names.City())};

  const std::string_view country = names.Country().empty() ? "US" : CountryCode(names.Country());
  if (!options_.WantsCountry(country))
    return Fault{Finding::OtherCountry, callSign + ", " + std::string(country)};
  station.row = system.row;
  station.facility = joined.facility;
  station.names = StationNames(callSign, names.City(),
                               names.State().empty() && country != "US" ? "-" : names.State(), country);
  station.channel = static_cast<std::int16_t>(facility.frequency);
  station.hours = system.hours;
  station.position = system.position;
  station.powerKW = system.powerKW;
  station.permit = joined.standing == Standing::Permit;
  station.directional = system.directional || system.towerCount > 1;
  return std::nullopt;
}

void TableStations::UseFor(std::size_t index, Station& station) {
  System& joined = systems_[index];
  const AntennaSystem& system = *joined.row;
  if (!joined.used) report_.Take(system.row);
  joined.used = true;

  const TowerRows* towers = tables_.towers.Find(system.Key());
  if (!towers) {
    const std::string none = "0 of " + std::to_string(system.towerCount) + " towers";
    return DoWithoutArray(station, Finding::TowersUnknown, system.towerCount > 1 ? none : "");
  }
  TowerArray array = ResolveTowers(towers->rows, system.towerCount);
  const std::string count = std::to_string(array.towers.size()) + " towers";
  if (!array.fault.empty()) return DoWithoutArray(station, Finding::TowersUnknown, array.fault);
  if (array.tooMany) return DoWithoutArray(station, Finding::TooManyTowers, count);

  TakeTowers(joined, *towers, array.fieldless);
  if (!station.directional && array.towers.size() > 1)
    report_.Remark(station.row, Finding::TowersDisagree, Named(station, count));
  array.towers.shrink_to_fit();
  station.towers = std::make_shared<const std::vector<Tower>>(std::move(array.towers));
}

void TableStations::TakeTowers(System& system, const TowerRows& towers,
                               const std::vector<RowPlace>& fieldless) {
  if (system.hasTowers) return;
  system.hasTowers = true;
  for (const TowerRow& tower : towers.rows) {
    const bool hasNoField = std::any_of(fieldless.begin(), fieldless.end(),
                                        [&](RowPlace row) { return row.line == tower.row.line; });
    if (hasNoField)
      report_.LeaveOut(tower.row, Finding::NoField,
                       Named(*system.row) + ", tower " + std::to_string(tower.number));
    else
      report_.Take(tower.row);
  }
}

void TableStations::UseNothingFor(Station& station) {
  DoWithoutArray(station, Finding::TowersUnknown, {});
}

/// A non-directional station radiates all around whatever the tables lack: one tower. Of a directional one
/// the pattern stays unknown.
void TableStations::DoWithoutArray(Station& station, Finding why, const std::string& fault) {
  if (!station.directional) {
    static const SharedTowers kOne = std::make_shared<const std::vector<Tower>>(1);
    station.towers = kOne;
    if (why == Finding::TowersUnknown) why = Finding::TowersPassedOver;
    if (fault.empty()) return;
  }
  report_.Remark(station.row, why, Named(station, fault));
}

void TableStations::CloseAccounts() {
  std::vector<bool> engineering(tables_.engineering.size());
  std::vector<bool> applications(tables_.applications.size());
  std::vector<bool> facilities(tables_.facilities.size());
  std::vector<bool> towers(tables_.towers.size());
  const auto mark = [](std::vector<bool>& used, std::optional<std::size_t> index) {
    if (index) used[*index] = true;
  };
  for (const System& system : systems_) {
    if (system.hasTowers) mark(towers, tables_.towers.IndexOf(system.row->Key()));
    if (!system.used) continue;
    mark(engineering, tables_.engineering.IndexOf(system.row->Application()));
    mark(applications, tables_.applications.IndexOf(system.row->Application()));
    mark(facilities, tables_.facilities.IndexOf(system.facility));
  }

  const auto close = [this](const auto& rows, const std::vector<bool>& used, const std::string& what) {
    std::deque<std::uint32_t> unused;
    for (std::uint32_t i = 0; i < rows.size(); ++i) {
      if (used[i])
        report_.Take(rows[i].row);
      else
        unused.push_back(i);
    }
    std::sort(unused.begin(), unused.end(),
              [&](auto a, auto b) { return Earlier(rows[a].row, rows[b].row); });
    for (const auto i : unused)
      report_.LeaveOut(rows[i].row, Finding::NotReferred, what + KeyText(rows[i].Key()));
  };
  close(tables_.facilities, facilities, "facility ");
  close(tables_.engineering, engineering, "application ");
  close(tables_.applications, applications, "application ");

  std::deque<std::pair<RowPlace, std::uint32_t>> unused;
  for (std::uint32_t i = 0; i < tables_.towers.size(); ++i) {
    if (towers[i]) continue;
    for (const TowerRow& tower : tables_.towers[i].rows) unused.emplace_back(tower.row, i);
  }
  std::sort(unused.begin(), unused.end(),
            [](const auto& a, const auto& b) { return Earlier(a.first, b.first); });
  for (const auto& [row, i] : unused)
    report_.LeaveOut(row, Finding::NotReferred,
                     "a tower of antenna system " + std::string(tables_.towers[i].Key()));
}

}  // namespace kestrel
