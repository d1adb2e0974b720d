#include "field/OnAirStations.h"

#include <utility>

namespace kestrel {

void OnAirStations::Add(const StationRecord& record) {
  const std::size_t station = StationOf(record);
  const Hours hours = HoursOf(record.HoursCode);
  stations_[station].Hours.Add(hours);
  records_.push_back(
      {station, hours,
       SiteClock(SunSite(record.Latitude, record.Longitude), record.Country == "United States")});
}

std::size_t OnAirStations::StationOf(const StationRecord& record) {
  std::string name;
  for (const std::string* part : {&record.CallSign, &record.City, &record.State, &record.Country})
    name += *part + '\n';
  const auto [found, isNew] = stationByName_.emplace(std::move(name), stations_.size());
  if (isNew) stations_.push_back({records_.size(), {}});
  return found->second;
}

OnAirRecords OnAirStations::At(Moment moment, const Sun& sun, HoursRule rule) {
  OnAirRecords now;
  now.InForce.resize(records_.size());
  std::vector<bool> onAir(stations_.size());
  std::vector<TimeOfDay> timeOfFirst(stations_.size());
  for (std::size_t i = 0; i < records_.size(); ++i) {
    Record& record = records_[i];
    const Station& station = stations_[record.Station];
    const TimeOfDay time = record.Clock.At(moment, sun, rule);
    if (station.FirstRecord == i) timeOfFirst[record.Station] = time;
    if (HoursInForce(station.Hours, time) != record.Code) continue;
    now.InForce[i] = true;
    onAir[record.Station] = true;
  }
  for (std::size_t i = 0; i < stations_.size(); ++i)
    if (!onAir[i])
      now.Silent.push_back({stations_[i].FirstRecord, SilenceReason(stations_[i].Hours, timeOfFirst[i])});
  return now;
}

}  // namespace kestrel
