#include "import/merge/CallIndex.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

#include "core/Numbers.h"
#include "core/Text.h"
#include "data/PlaceLists.h"
#include "data/StationLineText.h"
#include "import/Countries.h"

namespace kestrel {
namespace {

/// How a site serves for choosing home, the best first.
enum class Use : char { StrongestOfTown, FurtherStation, FurtherSite };

/// A station at one site.
struct Site {
  const Station* station = nullptr;  // one of its antennas
  double powerKW = 0;                // the highest
  std::array<char, 5> hours{};
  Use use = Use::FurtherSite;
};

std::string PositionColumn(double degrees) {
  const std::string text = DegreesText(static_cast<float>(degrees));
  return std::string(9 - std::min<std::size_t>(9, text.size()), ' ') + text;
}

float ColumnValue(double degrees) {
  return static_cast<float>(LeadingNumber(DegreesText(static_cast<float>(degrees))));
}

/// Calls `each` with the sites by call sign, channel and position.
template <typename Each>
void ForEachSite(const Stations& stations, Each each) {
  struct Antenna {
    const Station* station;
    float latitude, longitude;
    auto Key() const { return std::tuple(station->Names.CallSign(), station->Channel, latitude, longitude); }
  };
  std::vector<Antenna> antennas;
  antennas.reserve(stations.size());
  for (const Station& s : stations)
    antennas.push_back({&s, ColumnValue(s.Position.Latitude), ColumnValue(s.Position.Longitude)});
  std::stable_sort(antennas.begin(), antennas.end(),
                   [](const Antenna& a, const Antenna& b) { return a.Key() < b.Key(); });
  for (auto at = antennas.begin(); at != antennas.end();) {
    Site site{at->station};
    for (const auto key = at->Key(); at != antennas.end() && at->Key() == key; ++at) {
      site.powerKW = std::max(site.powerKW, at->station->PowerKW);
      const char letter = HoursLetter(at->station->Hours);
      const auto hours = std::find(site.hours.begin(), site.hours.end() - 1, letter);
      if (hours == site.hours.end() - 1) *std::find(site.hours.begin(), hours, '\0') = letter;
    }
    each(site);
  }
}

/// "THUNDER BAY" -> "Thunder Bay": capitals at the front and behind blanks, hyphens and the like.
std::string Capitalised(std::string_view name) {
  std::string text(name);
  bool inWord = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto code = static_cast<unsigned char>(text[i]);
    const bool latin = i > 0 && static_cast<unsigned char>(text[i - 1]) == 0xC3 && code >= 0x80 &&
                       code <= 0x9E && code != 0x97;
    if (inWord && ((code >= 'A' && code <= 'Z') || latin)) text[i] = static_cast<char>(code + 32);
    inWord = code >= 0x80 || (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z') || code == '\'';
  }
  return text;
}

/// The columns that CutCall reads; what stands between them is for people.
std::string IndexLine(const Site& site) {
  constexpr std::size_t kNameWidth = 25;
  const Station& station = *site.station;
  const StationNames& names = station.Names;
  const bool hasState = !names.State().empty() && names.State() != "-";
  std::string region(hasState ? names.State() : CountryName(names.Country()));
  if (region.empty()) region = names.Country();
  const std::size_t cityWidth = kNameWidth - std::min(kNameWidth - 1, CharacterCount(region) + 2);
  const std::string name =
      std::string(Trim(Columns(Capitalised(names.City()), 1, cityWidth))) + "  " + region;

  const std::string channel = std::to_string(station.Channel);
  const std::string power = DecimalText(site.powerKW, 4, 6);
  std::string line = PadTo(std::string(Columns(names.CallSign(), 1, 8)), 13 - channel.size()) + channel + ' ';
  line = PadTo(line + std::string(Columns(name, 1, kNameWidth)), 39);
  line += std::string(7 - std::min<std::size_t>(7, power.size()), ' ') + power + " kW " + site.hours.data();
  return PadTo(std::string(Columns(line, 1, 53)), 53) + PositionColumn(station.Position.Latitude) + ' ' +
         PositionColumn(station.Position.Longitude) + "\r\n";
}

/// The order of their lines, which begin with call sign and channel; only those that share them are written
/// out for it.
bool LineLess(const Site& a, const Site& b) {
  const auto front = [](const Site& site) {
    return std::pair(Columns(site.station->Names.CallSign(), 1, 8), site.station->Channel);
  };
  return front(a) != front(b) ? front(a) < front(b) : IndexLine(a) < IndexLine(b);
}

bool CanBeHome(const Site& site) {
  const SitePosition& p = site.station->Position;
  return p.Latitude >= -88 && p.Latitude <= 88 && p.Longitude >= 30 && p.Longitude <= 170;
}

/// "QABC 1230, SPRINGFIELD, IL, 1 kW"
std::string Named(const Site& site) {
  const Station& station = *site.station;
  const StationNames& names = station.Names;
  return std::string(names.CallSign()) + ' ' + std::to_string(station.Channel) + ", " +
         std::string(names.City()) + ", " + std::string(names.State()) + ", " + DecimalText(site.powerKW, 4) +
         " kW";
}

/// The first of those with the same key, by their order in memory.
template <typename Key>
std::vector<Site*> FirstOfEach(std::vector<Site*> sites, Key key) {
  std::sort(sites.begin(), sites.end(),
            [&](Site* a, Site* b) { return std::pair(key(*a), a) < std::pair(key(*b), b); });
  const auto end =
      std::unique(sites.begin(), sites.end(), [&](Site* a, Site* b) { return key(*a) == key(*b); });
  sites.erase(end, sites.end());
  return sites;
}

/// Orders the sites by their use for choosing home: first the strongest of each town, so that no town is
/// without one; then the others by power; a station's further sites last.
void SortByUse(std::vector<Site>& sites) {
  std::stable_sort(sites.begin(), sites.end(),
                   [](const Site& a, const Site& b) { return a.powerKW > b.powerKW; });
  std::vector<Site*> stations;
  stations.reserve(sites.size());
  for (Site& site : sites) stations.push_back(&site);
  stations = FirstOfEach(std::move(stations), [](const Site& site) {
    return std::pair(site.station->Names.CallSign(), site.station->Channel);
  });
  for (Site* site : stations) site->use = Use::FurtherStation;
  const std::vector<Site*> strongest = FirstOfEach(std::move(stations), [](const Site& site) {
    const StationNames& names = site.station->Names;
    return std::tuple(names.Country(), names.State(), names.City());
  });
  for (Site* site : strongest) site->use = Use::StrongestOfTown;
  std::stable_sort(sites.begin(), sites.end(), [](const Site& a, const Site& b) { return a.use < b.use; });
}

}  // namespace

std::string CallIndexText(const Stations& stations, ImportReport& report) {
  std::vector<Site> sites;
  sites.reserve(stations.size());
  ForEachSite(stations, [&](const Site& site) {
    if (CanBeHome(site))
      sites.push_back(site);
    else
      report.Remark(site.station->Row, Finding::NoHome, Named(site));
  });
  if (sites.size() > MaxCalls) {
    SortByUse(sites);
    for (std::size_t i = MaxCalls; i < sites.size(); ++i)
      report.Remark(sites[i].station->Row, Finding::IndexFull, Named(sites[i]));
    sites.resize(MaxCalls);
  }
  std::sort(sites.begin(), sites.end(), LineLess);
  std::size_t length = 0;
  for (const Site& site : sites) length += IndexLine(site).size();
  std::string text;
  text.reserve(length);
  for (const Site& site : sites) text += IndexLine(site);
  return text;
}

void CountStations(const Stations& stations, ImportReport& report) {
  report.Stations = 0;
  ForEachSite(stations, [&](const Site&) { ++report.Stations; });
  report.Records = static_cast<int>(stations.size());
}

}  // namespace kestrel
