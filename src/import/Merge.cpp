#include "import/Merge.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "import/TableStations.h"

namespace kestrel {
namespace {

std::string Named(const Station& station) {
  return station.callSign + ' ' + std::to_string(station.channel) + ' ' + station.hours;
}

/// Whether row `a` counts rather than row `b` of the same station and hours.
bool IsPreferred(const Station& a, const Station& b) {
  return std::tuple(-a.row.file, a.preference, -a.row.line) <
         std::tuple(-b.row.file, b.preference, -b.row.line);
}

/// Hours that cannot both be: unlimited holds day and night.
bool Overlap(char a, char b) {
  return (a == 'U' && (b == 'D' || b == 'N')) || (b == 'U' && (a == 'D' || a == 'N'));
}

/// One row for each station and hours, none for those that a later list ends; the others are left out.
std::vector<Station> ChosenRows(AmqStations amq, ImportReport& report) {
  std::vector<Station> chosen;
  std::unordered_map<std::string, std::size_t> places;
  for (Station& row : amq.onAir) {
    const std::string identity = Identity(row);
    if (const auto ended = amq.endedIn.find(identity);
        ended != amq.endedIn.end() && ended->second > row.row.file) {
      report.LeaveOut(row.row, Finding::Superseded, Named(row) + ", off the air in a later list");
      continue;
    }
    const auto [at, isNew] = places.try_emplace(identity, chosen.size());
    if (isNew) {
      chosen.push_back(std::move(row));
      continue;
    }
    Station& kept = chosen[at->second];
    if (IsPreferred(row, kept)) std::swap(kept, row);
    report.LeaveOut(row.row, Finding::Superseded, Named(row));
  }

  std::unordered_map<std::string, std::vector<const Station*>> ofFacility;
  for (const Station& station : chosen)
    if (!station.facility.empty()) ofFacility[station.facility].push_back(&station);
  std::vector<bool> replaced(chosen.size());
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    const Station& station = chosen[i];
    if (station.facility.empty()) continue;
    const auto& others = ofFacility[station.facility];
    replaced[i] = std::any_of(others.begin(), others.end(), [&](const Station* other) {
      return other->row.file > station.row.file && Overlap(other->hours, station.hours);
    });
    if (replaced[i]) report.LeaveOut(station.row, Finding::Superseded, Named(station));
  }
  std::size_t i = 0;
  std::erase_if(chosen, [&](const Station&) { return replaced[i++]; });
  return chosen;
}

/// The stations of the tables that no list has.
class TableOnly {
 public:
  TableOnly(const AmqStations& amq, const std::vector<Station>& listed, TableStations& tables,
            ImportReport& report)
      : amq_(amq), tables_(tables), report_(report) {
    for (const Station& station : listed)
      if (!station.facility.empty()) listed_[station.facility] += station.hours;
  }

  void AddTo(std::vector<Station>& stations) {
    std::map<FacilityHours, Station> found;  // of several the last one, a licensed one rather than a permit
    for (std::size_t i = 0; i < tables_.Count(); ++i) {
      if (tables_.IsUsed(i)) continue;
      Station station;
      std::optional<Fault> fault = tables_.MakeStation(i, station);
      if (!fault) fault = AgainstLists(station);
      if (fault) {
        report_.LeaveOut(tables_.RowOf(i), fault->finding, fault->text);
        continue;
      }
      indexOf_[{station.row.file, station.row.line}] = i;
      const auto [at, isNew] = found.try_emplace({station.facility, station.hours}, station);
      if (isNew) continue;
      if (!station.permit || at->second.permit) std::swap(at->second, station);
      report_.LeaveOut(station.row, Finding::Superseded, Named(station));
    }
    for (auto& [key, station] : found) {
      tables_.UseFor(indexOf_.at({station.row.file, station.row.line}), station);
      stations.push_back(std::move(station));
    }
  }

 private:
  std::optional<Fault> AgainstLists(const Station& station) const {
    if (!amq_.facilities.contains(station.facility)) return std::nullopt;
    const auto hours = listed_.find(station.facility);
    const bool off = hours == listed_.end() || amq_.offAir.contains({station.facility, station.hours});
    const auto sameOrOverlapping = [&](char c) { return c == station.hours || Overlap(c, station.hours); };
    if (hours != listed_.end() && std::any_of(hours->second.begin(), hours->second.end(), sameOrOverlapping))
      return Fault{Finding::Superseded, Named(station)};
    if (off) return Fault{Finding::NotOnAir, Named(station) + ", by the AM Query list"};
    return std::nullopt;
  }

  const AmqStations& amq_;
  TableStations& tables_;
  ImportReport& report_;
  std::unordered_map<std::string, std::string> listed_;  // the hours of each facility
  std::map<std::pair<int, int>, std::size_t> indexOf_;   // of an antenna record by its row
};

/// A station's records stand together, by day, by night, in critical hours: those of a facility whatever
/// their towns, those without a facility by their towns.
bool InOrder(const Station& a, const Station& b) {
  constexpr std::string_view kHours = "DNCU";
  const auto station = [](const Station& s) {
    return std::tie(s.channel, s.callSign, s.country, s.facility);
  };
  const auto town = [](const Station& s) { return std::tie(s.state, s.city); };
  const auto record = [&](const Station& s) {
    return std::tuple(kHours.find(s.hours), s.position.latitude, s.position.longitude);
  };
  if (station(a) != station(b)) return station(a) < station(b);
  const bool byTown = a.facility == decltype(a.facility){};
  if (byTown && town(a) != town(b)) return town(a) < town(b);
  return std::tuple(record(a), town(a)) < std::tuple(record(b), town(b));
}

}  // namespace

std::vector<Station> MergeStations(AmqStations amq, const AntennaTables& tables, const ImportOptions& options,
                                   ImportReport& report) {
  TableStations known(tables, options, report);
  std::vector<Station> stations = ChosenRows({std::move(amq.onAir), {}, {}, std::move(amq.endedIn)}, report);

  const auto call = [](const Station& s) { return std::tuple(s.callSign, s.channel, s.hours); };
  std::map<std::tuple<std::string, int, char>, int> sameCall;
  for (const Station& station : stations) ++sameCall[call(station)];
  for (Station& station : stations) {
    report.Take(station.row);
    std::optional<std::size_t> antenna;
    if (!station.facility.empty()) antenna = known.Find(station.facility, station.hours, station.permit);
    if (!antenna && sameCall[call(station)] == 1) antenna = known.FindByCall(station, amq.facilities);
    if (antenna)
      known.UseFor(*antenna, station);
    else
      known.UseNothingFor(station);
  }

  TableOnly(amq, stations, known, report).AddTo(stations);
  known.CloseAccounts();
  std::sort(stations.begin(), stations.end(), InOrder);
  return stations;
}

}  // namespace kestrel
