#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "core/Text.h"
#include "data/PlaceLists.h"
#include "data/StationLineText.h"
#include "import/Countries.h"
#include "import/StationSet.h"

namespace kestrel {
namespace {

/// A station at one site; its columns are those that CutCall reads, the others are for people.
struct Site {
  const Station* station = nullptr;  // one of its antennas
  double powerKW = 0;                // the highest
  std::string hours;
};

using SiteKey = std::tuple<std::string, int, std::string, std::string>;

std::string PositionColumn(double degrees) {
  const std::string text = DegreesText(static_cast<float>(degrees));
  return std::string(9 - std::min<std::size_t>(9, text.size()), ' ') + text;
}

std::map<SiteKey, Site> SitesOf(const std::vector<Station>& stations) {
  std::map<SiteKey, Site> sites;
  for (const Station& station : stations) {
    Site& site = sites[{station.callSign, station.channel, PositionColumn(station.position.latitude),
                        PositionColumn(station.position.longitude)}];
    if (!site.station) site.station = &station;
    site.powerKW = std::max(site.powerKW, station.powerKW);
    if (site.hours.find(station.hours) == std::string::npos) site.hours += station.hours;
  }
  return sites;
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

std::string IndexLine(const Site& site) {
  constexpr std::size_t kNameWidth = 25;
  const Station& station = *site.station;
  const bool hasState = !station.state.empty() && station.state != "-";
  std::string region = hasState ? station.state : std::string(CountryName(station.country));
  if (region.empty()) region = station.country;
  const std::size_t cityWidth = kNameWidth - std::min(kNameWidth - 1, CharacterCount(region) + 2);
  const std::string name =
      std::string(Trim(Columns(Capitalised(station.city), 1, cityWidth))) + "  " + region;

  const std::string channel = std::to_string(station.channel);
  const std::string power = DecimalText(site.powerKW, 4, 6);
  std::string line = PadTo(std::string(Columns(station.callSign, 1, 8)), 13 - channel.size()) + channel + ' ';
  line = PadTo(line + std::string(Columns(name, 1, kNameWidth)), 39);
  line += std::string(7 - std::min<std::size_t>(7, power.size()), ' ') + power + " kW " + site.hours;
  return PadTo(std::string(Columns(line, 1, 53)), 53) + PositionColumn(station.position.latitude) + ' ' +
         PositionColumn(station.position.longitude) + "\r\n";
}

bool CanBeHome(const Site& site) {
  const SitePosition& p = site.station->position;
  return p.latitude >= -88 && p.latitude <= 88 && p.longitude >= 30 && p.longitude <= 170;
}

/// "QABC 1230, SPRINGFIELD, IL, 1 kW"
std::string Named(const Site& site) {
  const Station& station = *site.station;
  return station.callSign + ' ' + std::to_string(station.channel) + ", " + station.city + ", " +
         station.state + ", " + DecimalText(site.powerKW, 4) + " kW";
}

/// The sites by their use for choosing home: first the strongest of each town, so that no town is without
/// one; then the others by power; a station's further sites last.
std::vector<const Site*> ByUse(std::vector<const Site*> sites) {
  std::stable_sort(sites.begin(), sites.end(),
                   [](const Site* a, const Site* b) { return a->powerKW > b->powerKW; });
  enum Use { StrongestOfTown, FurtherStation, FurtherSite };
  std::set<std::tuple<std::string, std::string, std::string>> towns;
  std::set<std::pair<std::string, int>> calls;
  std::vector<std::pair<Use, const Site*>> byUse;
  for (const Site* site : sites) {
    const Station& station = *site->station;
    const bool newCall = calls.emplace(station.callSign, station.channel).second;
    const bool newTown = newCall && towns.emplace(station.country, station.state, station.city).second;
    byUse.emplace_back(newTown ? StrongestOfTown : newCall ? FurtherStation : FurtherSite, site);
  }
  std::stable_sort(byUse.begin(), byUse.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::transform(byUse.begin(), byUse.end(), sites.begin(), [](const auto& entry) { return entry.second; });
  return sites;
}

}  // namespace

std::string CallIndexText(const std::vector<Station>& stations, ImportReport& report) {
  const std::map<SiteKey, Site> sites = SitesOf(stations);
  std::vector<const Site*> chosen;
  for (const auto& [key, site] : sites) {
    if (CanBeHome(site))
      chosen.push_back(&site);
    else
      report.Remark(site.station->row, Finding::NoHome, Named(site));
  }
  if (chosen.size() > MaxCalls) {
    chosen = ByUse(std::move(chosen));
    for (std::size_t i = MaxCalls; i < chosen.size(); ++i)
      report.Remark(chosen[i]->station->row, Finding::IndexFull, Named(*chosen[i]));
    chosen.resize(MaxCalls);
  }
  std::vector<std::string> lines;
  lines.reserve(chosen.size());
  for (const Site* site : chosen) lines.push_back(IndexLine(*site));
  std::sort(lines.begin(), lines.end());
  std::string text;
  for (const std::string& line : lines) text += line;
  return text;
}

int SiteCount(const std::vector<Station>& stations) {
  return static_cast<int>(SitesOf(stations).size());
}

}  // namespace kestrel
