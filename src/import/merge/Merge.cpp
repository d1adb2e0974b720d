#include "import/merge/Merge.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <numeric>
#include <optional>
#include <tuple>
#include <utility>

#include "data/StationFile.h"
#include "import/merge/TableStations.h"

namespace kestrel {
namespace {

std::string Named(const Station& station) {
  return std::string(station.Names.CallSign()) + ' ' + std::to_string(station.Channel) + ' ' +
         HoursLetter(station.Hours);
}

/// Whether row `a` counts rather than row `b` of the same station and hours.
bool IsPreferred(const Station& a, const Station& b) {
  return std::tuple(-a.Row.File, a.Preference, -a.Row.Line) <
         std::tuple(-b.Row.File, b.Preference, -b.Row.Line);
}

/// Hours that cannot both be: unlimited holds day and night.
bool Overlap(Hours a, Hours b) {
  const auto half = [](Hours hours) { return hours == Hours::Daytime || hours == Hours::Nighttime; };
  return (a == Hours::Unlimited && half(b)) || (b == Hours::Unlimited && half(a));
}

/// The stations by their places in the deque, in the order of `less`.
using Order = std::vector<std::uint32_t>;
template <typename Less>
Order SortedBy(const Stations& stations, Less less) {
  Order order(stations.size());
  std::iota(order.begin(), order.end(), 0U);
  std::sort(order.begin(), order.end(), [&](auto a, auto b) { return less(stations[a], stations[b]); });
  return order;
}

/// Calls `each` with the beginning and the end of every run of stations that `less` finds equal.
template <typename Less, typename Each>
void ForEachRun(const Stations& stations, const Order& order, Less less, Each each) {
  for (auto begin = order.begin(); begin != order.end();) {
    const auto end =
        std::find_if(begin, order.end(), [&](auto i) { return less(stations[*begin], stations[i]); });
    each(begin, end);
    begin = end;
  }
}

void Erase(Stations& stations, const std::vector<bool>& gone) {
  std::size_t i = 0;
  std::erase_if(stations, [&](const Station&) { return gone[i++]; });
}

/// Of the rows that end stations the last list's for each, in order.
Stations LastEnded(Stations ended) {
  std::sort(ended.begin(), ended.end(), [](const Station& a, const Station& b) {
    if (IdentityLess(a, b) || IdentityLess(b, a)) return IdentityLess(a, b);
    return a.Row.File > b.Row.File;
  });
  const auto same = [](const Station& a, const Station& b) { return !IdentityLess(a, b); };
  ended.erase(std::unique(ended.begin(), ended.end(), same), ended.end());
  return ended;
}

/// The file of the last list that ends the station, by its facility or, in a row without one, by its names;
/// -1 when none does. `ended` is as LastEnded has it.
int EndedIn(const Stations& ended, Station station) {
  const auto file = [&] {
    const auto at = std::lower_bound(ended.begin(), ended.end(), station, IdentityLess);
    return at != ended.end() && !IdentityLess(station, *at) ? at->Row.File : -1;
  };
  const int byFacility = file();
  station.Facility = 0;
  return std::max(byFacility, file());
}

/// One row for each station and hours, none for those that a later list ends; the others are left out.
void ChooseRows(Stations& rows, const Stations& ended, ImportReport& report) {
  std::vector<bool> gone(rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    gone[i] = EndedIn(ended, rows[i]) > rows[i].Row.File;
    if (gone[i])
      report.LeaveOut(rows[i].Row, Finding::Superseded, Named(rows[i]) + ", off the air in a later list");
  }
  Erase(rows, gone);

  gone.assign(rows.size(), false);
  const auto preferredFirst = [](const Station& a, const Station& b) {
    if (IdentityLess(a, b) || IdentityLess(b, a)) return IdentityLess(a, b);
    return IsPreferred(a, b);
  };
  const Order order = SortedBy(rows, preferredFirst);
  ForEachRun(rows, order, IdentityLess, [&](auto begin, auto end) {
    for (auto at = begin + 1; at != end; ++at) gone[*at] = true;
  });
  const auto byFacility = [](const Station& a, const Station& b) { return a.Facility < b.Facility; };
  std::vector<bool> replaced = gone;
  ForEachRun(rows, order, byFacility, [&](auto begin, auto end) {
    if (rows[*begin].Facility == 0) return;
    Order kept;
    std::copy_if(begin, end, std::back_inserter(kept), [&](auto i) { return !gone[i]; });
    for (const auto i : kept)
      replaced[i] = std::any_of(kept.begin(), kept.end(), [&](auto other) {
        return rows[other].Row.File > rows[i].Row.File && Overlap(rows[other].Hours, rows[i].Hours);
      });
  });
  for (std::size_t i = 0; i < rows.size(); ++i)
    if (replaced[i]) report.LeaveOut(rows[i].Row, Finding::Superseded, Named(rows[i]));
  Erase(rows, replaced);
}

/// The room in the station files. What has none is left out, the weakest stations first.
class Room {
 public:
  void Fill(Stations& stations, ImportReport& report) {
    const Order order = SortedBy(stations, [](const Station& a, const Station& b) {
      return std::tuple(-a.PowerKW, a.Row.File, a.Row.Line) < std::tuple(-b.PowerKW, b.Row.File, b.Row.Line);
    });
    std::vector<bool> gone(stations.size());
    for (const auto i : order) gone[i] = ++records_[stations[i].Channel] > MaxRecords;
    for (std::size_t i = 0; i < stations.size(); ++i)
      if (gone[i]) report.LeaveOut(stations[i].Row, Finding::ChannelFull, Named(stations[i]));
    Erase(stations, gone);
  }

 private:
  std::map<int, int> records_;  // by channel
};

/// The stations of the tables that no list has.
class TableOnly {
 public:
  TableOnly(const AmqStations& amq, const Stations& ended, const Stations& listed, TableStations& tables,
            ImportReport& report)
      : amq_(amq), ended_(ended), tables_(tables), report_(report) {
    for (const Station& station : listed)
      if (station.Facility != 0) listed_.emplace_back(station.Facility, station.Hours);
    std::sort(listed_.begin(), listed_.end());
  }

  void AddTo(Stations& stations, Room& room) {
    Stations found = Found();
    room.Fill(found, report_);
    for (; !found.empty(); found.pop_front()) {
      tables_.UseFor(tables_.IndexOf(found.front().Row), found.front());
      stations.push_back(std::move(found.front()));
    }
  }

 private:
  /// One for each facility and hours: of several the last one, a licensed one rather than a permit.
  Stations Found() {
    Stations found;
    for (std::size_t i = 0; i < tables_.Count(); ++i) {
      if (tables_.IsUsed(i)) continue;
      Station station;
      std::optional<Fault> fault = tables_.MakeStation(i, station);
      if (!fault) fault = AgainstLists(station);
      if (fault) {
        report_.LeaveOut(tables_.RowOf(i), fault->Why, fault->Text);
        continue;
      }
      found.push_back(std::move(station));
    }
    const auto hours = [](const Station& a, const Station& b) {
      return FacilityHours(a.Facility, a.Hours) < FacilityHours(b.Facility, b.Hours);
    };
    const Order order = SortedBy(found, [](const Station& a, const Station& b) {
      return std::tuple(a.Facility, a.Hours, a.Permit, -a.Row.File, -a.Row.Line) <
             std::tuple(b.Facility, b.Hours, b.Permit, -b.Row.File, -b.Row.Line);
    });
    std::vector<bool> gone(found.size());
    ForEachRun(found, order, hours, [&](auto begin, auto end) {
      for (auto at = begin + 1; at != end; ++at) gone[*at] = true;
    });
    for (std::size_t i = 0; i < found.size(); ++i)
      if (gone[i]) report_.LeaveOut(found[i].Row, Finding::Superseded, Named(found[i]));
    Erase(found, gone);
    return found;
  }

  std::optional<Fault> AgainstLists(const Station& station) const {
    const auto contains = [](const auto& sorted, const auto& value) {
      return std::binary_search(sorted.begin(), sorted.end(), value);
    };
    const Fault offAir = {Finding::NotOnAir, Named(station) + ", by the AM Query list"};
    const bool isEnded = EndedIn(ended_, station) >= 0;
    if (!contains(amq_.Facilities, station.Facility)) return isEnded ? std::optional(offAir) : std::nullopt;
    const auto begin =
        std::lower_bound(listed_.begin(), listed_.end(), FacilityHours(station.Facility, Hours{}));
    const auto end = std::find_if(
        begin, listed_.end(), [&](const FacilityHours& other) { return other.first != station.Facility; });
    const bool takesItsPlace = std::any_of(begin, end, [&](const FacilityHours& other) {
      return other.second == station.Hours || Overlap(other.second, station.Hours);
    });
    if (takesItsPlace) return Fault{Finding::Superseded, Named(station)};
    if (begin == end || isEnded || contains(amq_.OffAir, FacilityHours(station.Facility, station.Hours)))
      return offAir;
    return std::nullopt;
  }

  const AmqStations& amq_;
  const Stations& ended_;
  TableStations& tables_;
  ImportReport& report_;
  std::vector<FacilityHours> listed_;  // sorted
};

/// A station's records stand together, by day, by night, in critical hours: those of a facility whatever
/// their towns, those without a facility by their towns.
bool InOrder(const Station& a, const Station& b) {
  const auto station = [](const Station& s) {
    return std::tuple(s.Channel, s.Names.CallSign(), s.Names.Country(), s.Facility);
  };
  const auto town = [](const Station& s) { return std::tuple(s.Names.State(), s.Names.City()); };
  const auto record = [&](const Station& s) {
    return std::tuple(s.Hours, s.Position.Latitude, s.Position.Longitude);
  };
  if (station(a) != station(b)) return station(a) < station(b);
  if (a.Facility == 0 && town(a) != town(b)) return town(a) < town(b);
  return std::tuple(record(a), town(a)) < std::tuple(record(b), town(b));
}

}  // namespace

Stations MergeStations(AmqStations amq, const AntennaTables& tables, const ImportOptions& options,
                       ImportReport& report) {
  std::sort(amq.OffAir.begin(), amq.OffAir.end());
  std::sort(amq.Facilities.begin(), amq.Facilities.end());
  TableStations known(tables, options, report);
  Stations stations = std::move(amq.OnAir);
  const Stations ended = LastEnded(std::move(amq.Ended));
  ChooseRows(stations, ended, report);
  TableOnly others(amq, ended, stations, known, report);
  Room room;
  room.Fill(stations, report);

  const auto byCall = [](const Station& a, const Station& b) {
    return std::tuple(a.Names.CallSign(), a.Channel, a.Hours) <
           std::tuple(b.Names.CallSign(), b.Channel, b.Hours);
  };
  std::vector<bool> sharesCall(stations.size());
  ForEachRun(stations, SortedBy(stations, byCall), byCall, [&](auto begin, auto end) {
    for (auto at = begin; at != end; ++at) sharesCall[*at] = end - begin > 1;
  });
  for (std::size_t i = 0; i < stations.size(); ++i) {
    Station& station = stations[i];
    report.Take(station.Row);
    std::optional<std::size_t> antenna;
    if (station.Facility != 0) antenna = known.Find(station.Facility, station.Hours, station.Permit);
    if (!antenna && !sharesCall[i]) antenna = known.FindByCall(station, amq.Facilities);
    if (antenna)
      known.UseFor(*antenna, station);
    else
      known.UseNothingFor(station);
  }

  others.AddTo(stations, room);
  known.CloseAccounts();
  std::sort(stations.begin(), stations.end(), InOrder);
  return stations;
}

}  // namespace kestrel
