#include "import/TableStations.h"

#include <algorithm>

#include "data/StationLineText.h"
#include "import/Countries.h"
#include "import/TowerArray.h"

namespace kestrel {
namespace {

template <typename Map>
const typename Map::mapped_type* Lookup(const Map& map, const typename Map::key_type& key) {
  const auto found = map.find(key);
  return found == map.end() ? nullptr : &found->second;
}

bool Earlier(RowPlace a, RowPlace b) {
  return std::tie(a.file, a.line) < std::tie(b.file, b.line);
}

std::string Named(const std::string& antennaSystem) {
  return "antenna system " + antennaSystem;
}

/// "WAAA D", or with a fault "WAAA D, 2 of 3 towers".
std::string Named(const Station& station, const std::string& fault) {
  return std::string(station.names.CallSign()) + ' ' + station.hours + (fault.empty() ? "" : ", " + fault);
}

}  // namespace

TableStations::TableStations(const AntennaTables& tables, const ImportOptions& options, ImportReport& report)
    : tables_(tables), options_(options), report_(report) {
  for (const auto& [id, facility] : tables.facilities)
    if (!facility.application.empty()) facilityOfApplication_.emplace(facility.application, id);

  std::vector<const Entry*> inOrder;
  inOrder.reserve(tables.systems.size());
  for (const Entry& entry : tables.systems) inOrder.push_back(&entry);
  std::sort(inOrder.begin(), inOrder.end(),
            [](const Entry* a, const Entry* b) { return Earlier(a->second.row, b->second.row); });
  systems_.reserve(inOrder.size());
  for (const Entry* entry : inOrder) Join(*entry);
  BuildIndexes();
}

void TableStations::Join(const Entry& entry) {
  const AntennaSystem& system = entry.second;
  const ApplicationRow* engineering = Lookup(tables_.engineering, system.application);
  const std::optional<Standing> standing = StandingOf(system, engineering);
  if (!standing) return report_.LeaveOut(system.row, Finding::NotLicensed, Named(entry.first));

  System joined{&entry, nullptr, 0, *standing};
  if (engineering) joined.facility = engineering->facility;
  if (const ApplicationRow* application = Lookup(tables_.applications, system.application);
      application && joined.facility == 0)
    joined.facility = application->facility;
  if (const FacilityId* facility = Lookup(facilityOfApplication_, system.application); facility)
    joined.facility = *facility;
  joined.station = Lookup(tables_.facilities, joined.facility);
  systems_.push_back(joined);
}

void TableStations::BuildIndexes() {
  for (std::uint32_t i = 0; i < systems_.size(); ++i) {
    if (systems_[i].facility != 0) byFacility_.push_back(i);
    if (systems_[i].station) byCall_.push_back(i);
  }
  std::stable_sort(byFacility_.begin(), byFacility_.end(),
                   [this](auto a, auto b) { return systems_[a].Hours() < systems_[b].Hours(); });
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

std::optional<std::size_t> TableStations::Find(FacilityId facility, char hours, bool permit) const {
  const FacilityHours key(facility, hours);
  std::optional<std::size_t> found;
  auto at = std::lower_bound(byFacility_.begin(), byFacility_.end(), key,
                             [this](auto i, const auto& wanted) { return systems_[i].Hours() < wanted; });
  for (; at != byFacility_.end() && systems_[*at].Hours() == key; ++at)
    if ((systems_[*at].standing == Standing::Permit) == permit) found = *at;
  return found;
}

std::optional<std::size_t> TableStations::FindByCall(const Station& station,
                                                     const std::vector<FacilityId>& others) const {
  const std::tuple<std::string_view, int, char> key(station.names.CallSign(), station.channel, station.hours);
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
                       [](const System& s, RowPlace wanted) { return Earlier(s.Row().row, wanted); });
  return static_cast<std::size_t>(at - systems_.begin());
}

bool TableStations::IsOnAir(const System& system) const {
  const std::string& status = system.station->status;
  const std::string_view country = system.station->names.Country();
  if (CountryCode(country) != "US" && !country.empty())
    return system.standing == Standing::Abroad || system.Row().current;
  if (status == "LICEN" || (status == "LICSL" && options_.includeSilent))
    return system.standing != Standing::Abroad;
  return system.standing == Standing::Permit && status.starts_with("CP");
}

std::optional<Fault> TableStations::MakeStation(std::size_t index, Station& station) const {
  const System& joined = systems_[index];
  const AntennaSystem& system = joined.Row();
  if (joined.facility == 0)
    return Fault{Finding::NoStation, Named(joined.Id()) + ", application " + system.application};
  if (!joined.station)
    return Fault{Finding::NoStation, Named(joined.Id()) + ", facility " + std::to_string(joined.facility)};
  const FacilityRow& facility = *joined.station;
  const StationNames& names = facility.names;
  const std::string callSign(names.CallSign());
  if (!IsCallSign(callSign)) return Fault{Finding::NotOnAir, "call sign \"" + callSign + '"'};
  if (!IsOnAir(joined))
    return Fault{Finding::NotOnAir,
                 callSign + ", status " + (facility.status.empty() ? "blank" : facility.status)};
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
  const AntennaSystem& system = joined.Row();
  if (!joined.used) report_.Take(system.row);
  joined.used = true;

  const auto rows = tables_.towers.find(joined.Id());
  if (rows == tables_.towers.end()) {
    const std::string none = "0 of " + std::to_string(system.towerCount) + " towers";
    return DoWithoutArray(station, Finding::TowersUnknown, system.towerCount > 1 ? none : "");
  }
  TowerArray array = ResolveTowers(rows->second, system.towerCount);
  const std::string count = std::to_string(array.towers.size()) + " towers";
  if (!array.fault.empty()) return DoWithoutArray(station, Finding::TowersUnknown, array.fault);
  if (array.tooMany) return DoWithoutArray(station, Finding::TooManyTowers, count);

  TakeTowers(joined.Id(), array.fieldless);
  if (!station.directional && array.towers.size() > 1)
    report_.Remark(station.row, Finding::TowersDisagree, Named(station, count));
  station.towers = std::make_shared<const std::vector<Tower>>(std::move(array.towers));
}

void TableStations::TakeTowers(const std::string& id, const std::vector<RowPlace>& fieldless) {
  if (!takenTowers_.insert(id).second) return;
  for (const TowerRow& tower : tables_.towers.at(id)) {
    const bool hasNoField = std::any_of(fieldless.begin(), fieldless.end(),
                                        [&](RowPlace row) { return row.line == tower.row.line; });
    if (hasNoField)
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
    static const SharedTowers kOne = std::make_shared<const std::vector<Tower>>(1);
    station.towers = kOne;
    if (why == Finding::TowersUnknown) why = Finding::TowersPassedOver;
    if (fault.empty()) return;
  }
  report_.Remark(station.row, why, Named(station, fault));
}

void TableStations::CloseAccounts() {
  std::vector<std::string_view> applications;
  std::vector<FacilityId> facilities;
  for (const System& system : systems_) {
    if (!system.used) continue;
    applications.push_back(system.Row().application);
    facilities.push_back(system.facility);
  }
  std::sort(applications.begin(), applications.end());
  std::sort(facilities.begin(), facilities.end());
  const auto close = [this](const auto& rows, const auto& used, const std::string& what) {
    std::vector<std::pair<RowPlace, decltype(&rows.begin()->first)>> unused;
    for (const auto& [id, row] : rows) {
      if (std::binary_search(used.begin(), used.end(), id))
        report_.Take(row.row);
      else
        unused.emplace_back(row.row, &id);
    }
    std::sort(unused.begin(), unused.end(),
              [](const auto& a, const auto& b) { return Earlier(a.first, b.first); });
    for (const auto& [row, id] : unused) report_.LeaveOut(row, Finding::NotReferred, what + KeyText(*id));
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
