#include "import/TableStations.h"

#include <algorithm>

#include "data/StationLineText.h"
#include "import/Countries.h"
#include "import/TowerArray.h"

namespace kestrel {
namespace {

template <typename Map>
const typename Map::mapped_type* Lookup(const Map& map, const std::string& key) {
  const auto found = map.find(key);
  return found == map.end() ? nullptr : &found->second;
}

bool Earlier(RowPlace a, RowPlace b) {
  return std::tie(a.file, a.line) < std::tie(b.file, b.line);
}

std::string Named(const AntennaSystem& system) {
  return "antenna system " + system.id;
}

/// "WAAA D", or with a fault "WAAA D, 2 of 3 towers".
std::string Named(const Station& station, const std::string& fault) {
  return station.callSign + ' ' + station.hours + (fault.empty() ? "" : ", " + fault);
}

}  // namespace

TableStations::TableStations(const AntennaTables& tables, const ImportOptions& options, ImportReport& report)
    : tables_(tables), options_(options), report_(report) {
  for (const auto& [id, facility] : tables.facilities)
    if (!facility.application.empty()) facilityOfApplication_.emplace(facility.application, id);

  std::vector<const AntennaSystem*> inOrder;
  for (const auto& [id, system] : tables.systems) inOrder.push_back(&system);
  std::sort(inOrder.begin(), inOrder.end(),
            [](const auto* a, const auto* b) { return Earlier(a->row, b->row); });
  for (const AntennaSystem* system : inOrder) Join(*system);
}

void TableStations::Join(const AntennaSystem& system) {
  const ApplicationRow* engineering = Lookup(tables_.engineering, system.application);
  const std::optional<Standing> standing = StandingOf(system, engineering);
  if (!standing) return report_.LeaveOut(system.row, Finding::NotLicensed, Named(system));

  System joined{&system, {}, nullptr, *standing};
  if (engineering) joined.facility = engineering->facility;
  if (const ApplicationRow* application = Lookup(tables_.applications, system.application);
      application && joined.facility.empty())
    joined.facility = application->facility;
  if (const std::string* facility = Lookup(facilityOfApplication_, system.application); facility)
    joined.facility = *facility;
  joined.station = Lookup(tables_.facilities, joined.facility);

  const std::size_t index = systems_.size();
  if (!joined.facility.empty()) byFacility_.emplace(std::pair(joined.facility, system.hours), index);
  if (joined.station)
    byCall_.emplace(Call(joined.station->callSign, static_cast<int>(joined.station->frequency), system.hours),
                    index);
  systems_.push_back(std::move(joined));
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

std::optional<std::size_t> TableStations::Find(const std::string& facility, char hours, bool permit) const {
  std::optional<std::size_t> found;
  const auto [first, last] = byFacility_.equal_range({facility, hours});
  for (auto at = first; at != last; ++at)
    if ((systems_[at->second].standing == Standing::Permit) == permit) found = at->second;
  return found;
}

std::optional<std::size_t> TableStations::FindByCall(const Station& station,
                                                     const std::set<std::string>& others) const {
  std::optional<std::size_t> found;
  const auto [first, last] = byCall_.equal_range(Call(station.callSign, station.channel, station.hours));
  for (auto at = first; at != last; ++at) {
    const System& system = systems_[at->second];
    if (others.contains(system.facility) || (system.standing == Standing::Permit) != station.permit) continue;
    if (found && systems_[*found].facility != system.facility) return std::nullopt;
    found = at->second;
  }
  return found;
}

bool TableStations::IsOnAir(const System& system) const {
  const std::string& status = system.station->status;
  if (CountryCode(system.station->country) != "US" && !system.station->country.empty())
    return system.standing == Standing::Abroad || system.system->current;
  if (status == "LICEN" || (status == "LICSL" && options_.includeSilent))
    return system.standing != Standing::Abroad;
  return system.standing == Standing::Permit && status.starts_with("CP");
}

std::optional<Fault> TableStations::MakeStation(std::size_t index, Station& station) const {
  const System& joined = systems_[index];
  const AntennaSystem& system = *joined.system;
  if (joined.facility.empty())
    return Fault{Finding::NoStation, Named(system) + ", application " + system.application};
  if (!joined.station) return Fault{Finding::NoStation, Named(system) + ", facility " + joined.facility};
  const FacilityRow& facility = *joined.station;
  if (!IsCallSign(facility.callSign))
    return Fault{Finding::NotOnAir, "call sign \"" + facility.callSign + '"'};
  if (!IsOnAir(joined))
    return Fault{Finding::NotOnAir,
                 facility.callSign + ", status " + (facility.status.empty() ? "blank" : facility.status)};
  if (!IsOnRaster(facility.frequency))
    return Fault{Finding::OffRaster, facility.callSign + ", " + DecimalText(facility.frequency, 3) + " kHz"};
  if (const std::string fault = PowerFault(system.powerKW); !fault.empty())
    return Fault{Finding::BadField, facility.callSign + ", " + fault};
  if (!IsInAmericas(system.position))
    return Fault{Finding::OutsideAmericas, facility.callSign + ", " + facility.city};

  station.country = facility.country.empty() ? "US" : CountryCode(facility.country);
  if (!options_.WantsCountry(station.country))
    return Fault{Finding::OtherCountry, facility.callSign + ", " + station.country};
  station.row = system.row;
  station.facility = joined.facility;
  station.callSign = facility.callSign;
  station.city = facility.city;
  station.state = facility.state.empty() && station.country != "US" ? "-" : facility.state;
  station.channel = static_cast<int>(facility.frequency);
  station.hours = system.hours;
  station.position = system.position;
  station.powerKW = system.powerKW;
  station.permit = joined.standing == Standing::Permit;
  station.directional = system.directional || system.towerCount > 1;
  return std::nullopt;
}

void TableStations::UseFor(std::size_t index, Station& station) {
  System& joined = systems_[index];
  const AntennaSystem& system = *joined.system;
  if (!joined.used) report_.Take(system.row);
  joined.used = true;

  const auto rows = tables_.towers.find(system.id);
  if (rows == tables_.towers.end()) {
    const std::string none = "0 of " + std::to_string(system.towerCount) + " towers";
    return DoWithoutArray(station, Finding::TowersUnknown, system.towerCount > 1 ? none : "");
  }
  TowerArray array = ResolveTowers(rows->second, system.towerCount);
  const std::string count = std::to_string(array.towers.size()) + " towers";
  if (!array.fault.empty()) return DoWithoutArray(station, Finding::TowersUnknown, array.fault);
  if (array.tooMany) return DoWithoutArray(station, Finding::TooManyTowers, count);

  std::set<int> fieldless;
  for (const RowPlace& row : array.fieldless) fieldless.insert(row.line);
  TakeTowers(system.id, fieldless);
  if (!station.directional && array.towers.size() > 1)
    report_.Remark(station.row, Finding::TowersDisagree, Named(station, count));
  station.towers = std::move(array.towers);
}

void TableStations::TakeTowers(const std::string& id, const std::set<int>& fieldless) {
  if (!takenTowers_.insert(id).second) return;
  for (const TowerRow& tower : tables_.towers.at(id)) {
    if (fieldless.contains(tower.row.line))
      report_.LeaveOut(tower.row, Finding::NoField,
                       "antenna system " + id + ", tower " + std::to_string(tower.number));
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
    station.towers.assign(1, Tower{});
    if (why == Finding::TowersUnknown) why = Finding::TowersPassedOver;
    if (fault.empty()) return;
  }
  report_.Remark(station.row, why, Named(station, fault));
}

void TableStations::CloseAccounts() {
  std::set<std::string> applications;
  std::set<std::string> facilities;
  for (const System& system : systems_) {
    if (!system.used) continue;
    applications.insert(system.system->application);
    facilities.insert(system.facility);
  }
  const auto close = [this](const auto& rows, const std::set<std::string>& used, const char* what) {
    std::vector<std::pair<RowPlace, const std::string*>> unused;
    for (const auto& [id, row] : rows) {
      if (used.contains(id))
        report_.Take(row.row);
      else
        unused.emplace_back(row.row, &id);
    }
    std::sort(unused.begin(), unused.end(),
              [](const auto& a, const auto& b) { return Earlier(a.first, b.first); });
    for (const auto& [row, id] : unused) report_.LeaveOut(row, Finding::NotReferred, what + *id);
  };
  close(tables_.facilities, facilities, "facility ");
  close(tables_.engineering, applications, "application ");
  close(tables_.applications, applications, "application ");

  std::vector<std::pair<RowPlace, const std::string*>> unused;
  for (const auto& [id, rows] : tables_.towers) {
    if (takenTowers_.contains(id)) continue;
    for (const TowerRow& row : rows) unused.emplace_back(row.row, &id);
  }
  std::sort(unused.begin(), unused.end(),
            [](const auto& a, const auto& b) { return Earlier(a.first, b.first); });
  for (const auto& [row, id] : unused)
    report_.LeaveOut(row, Finding::NotReferred, "a tower of antenna system " + *id);
}

}  // namespace kestrel
