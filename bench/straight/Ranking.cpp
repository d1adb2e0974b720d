#include "straight/Ranking.h"

#include <algorithm>
#include <cmath>

#include "core/Sun.h"
#include "straight/Antenna.h"
#include "straight/Waves.h"

namespace kestrel::straight {
namespace {

/// 'N' night, 'D' day, 'C' critical hours.
char TimeBySun(const SunSite& site, Moment moment) {
  const SolarClock clock = Sun(moment).ClockAt(site);
  if (!clock.SunIsUp()) return 'N';
  if (clock.Day == SolarClock::Course::PolarDay) return 'D';
  return std::abs(clock.HourAngle) > clock.HalfDay - 30 ? 'C' : 'D';
}

char TimeByLicence(const SunSite& site, double longitude, Moment moment) {
  using namespace std::chrono;
  const year_month_day date(floor<days>(moment - seconds(std::lround(longitude * 240))));
  const Moment noon =
      sys_days(date.year() / date.month() / 15) + hours(12) + seconds(std::lround(longitude * 240));
  const SunDay day = SunDayAt(site, noon);
  if (!day.Sunrise || !day.Sunset) return Sun(day.Noon).Elevation(site) >= SunriseElevation ? 'D' : 'N';
  const auto minuteOf = [](Moment time) {
    return static_cast<double>((time - floor<days>(time)).count()) / 60;
  };
  const double sunrise = std::round(minuteOf(*day.Sunrise) / 15) * 15;
  const double sunset = std::round(minuteOf(*day.Sunset) / 15) * 15;
  const double since = std::fmod(minuteOf(moment) - sunrise + 2880, 1440);
  const double length = std::fmod(sunset - sunrise + 1440, 1440);
  if (since >= length) return 'N';
  return since < 120 || length - since <= 120 ? 'C' : 'D';
}

bool IsOfStation(const StationRecord& a, const StationRecord& b) {
  return a.CallSign == b.CallSign && a.City == b.City && a.State == b.State && a.Country == b.Country;
}

bool IsInForce(const StationRecord& record, const std::vector<StationRecord>& records, Moment moment) {
  const SunSite site(record.Latitude, record.Longitude);
  const char time = record.Country == "United States" ? TimeByLicence(site, record.Longitude, moment)
                                                      : TimeBySun(site, moment);
  const std::string order = time == 'N' ? "NU" : time == 'C' ? "CDU" : "DU";
  for (const char code : order)
    for (const StationRecord& other : records)
      if (IsOfStation(record, other) && other.HoursCode == std::string(1, code))
        return record.HoursCode == other.HoursCode;
  return false;
}

RankedRecord Levels(const StationRecord& record, double frequencyKHz, const Position& home,
                    double conductivity, Moment moment) {
  const Antenna antenna(record);
  const SkyWave path = SkyWaveBetween(record.Latitude, record.Longitude, home.Latitude, home.Longitude);
  const double azimuth = CourseBetween(record.Latitude, record.Longitude, home.Latitude, home.Longitude);
  const double loss = HourlyLoss(record.Latitude, record.Longitude, home.Latitude, home.Longitude, moment);
  const double skyGain = 20 * std::log10(antenna.FieldAt(azimuth, path.DepartureAngle) / 100);
  RankedRecord ranked;
  ranked.Ground = std::max(-60.0, GroundWaveLevel(frequencyKHz, conductivity, std::max(1.0, path.Distance)) +
                                      20 * std::log10(antenna.FieldAt(azimuth, 0) / 100));
  ranked.SkyMedian = loss >= 60 ? -60 : std::max(-60.0, path.Median + skyGain - loss);
  ranked.SkyUpperDecile = loss >= 60 ? -60 : std::max(-60.0, path.UpperDecile + skyGain - loss);
  ranked.Total = 10 * std::log10(std::pow(10, ranked.Ground / 10) + std::pow(10, ranked.SkyMedian / 10));
  ranked.High =
      10 * std::log10(std::pow(10, (ranked.Ground + 6) / 10) + std::pow(10, ranked.SkyUpperDecile / 10));
  if (record.TowerCount == 0) ranked.High += 6;
  return ranked;
}

}  // namespace

std::vector<RankedRecord> Rank(const std::vector<StationRecord>& records, double frequencyKHz,
                               const Position& home, double conductivity, Moment moment) {
  std::vector<RankedRecord> rows;
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (!IsInForce(records[i], records, moment)) continue;
    rows.push_back(Levels(records[i], frequencyKHz, home, conductivity, moment));
    rows.back().Record = i;
  }
  std::stable_sort(rows.begin(), rows.end(),
                   [](const RankedRecord& a, const RankedRecord& b) { return a.Total > b.Total; });
  for (RankedRecord& row : rows) {
    const double needed = std::max(26.0, rows.front().Total - 6);
    row.Word = row.Total >= needed ? "likely" : row.High >= needed ? "possible" : "unlikely";
  }
  return rows;
}

}  // namespace kestrel::straight
