#include "import/StationSet.h"

#include <utility>

#include "core/Band.h"
#include "data/StationFile.h"
#include "data/StationLineText.h"
#include "import/Countries.h"

namespace kestrel {
namespace {

constexpr std::string_view kCallIndex = "StationsCall.DAT";
constexpr std::string_view kStationsLine = "Stations.txt";

std::string FileName(int channel) {
  return std::to_string(channel) + "x.dat";
}

StationRecord ToRecord(const Station& station) {
  StationRecord record;
  record.CallSign = station.names.CallSign();
  record.City = station.names.City();
  record.State = station.names.State();
  record.Country = CountryName(station.names.Country());
  if (record.Country.empty()) record.Country = station.names.Country();
  record.HoursCode = HoursLetter(station.hours);
  record.Latitude = static_cast<float>(station.position.latitude);
  record.Longitude = static_cast<float>(station.position.longitude);
  record.PowerKW = static_cast<float>(station.powerKW);
  if (!station.towers) return record;
  for (const Tower& tower : *station.towers) {
    const auto i = static_cast<std::size_t>(++record.TowerCount);
    record.Switch[i] = "0";
    record.Fields[i] = tower.field;
    record.Heights[i] = tower.height;
    record.Phases[i] = tower.phase;
    record.Spacings[i] = tower.spacing;
    record.Bearings[i] = tower.bearing;
  }
  return record;
}

void RemarkOnNames(const Station& station, const FieldChanges& changes, ImportReport& report) {
  const std::string_view country = station.names.Country();
  const bool unknown = CountryName(country).empty();
  if (changes.cut + changes.blanked + changes.empty == 0 && !unknown) return;
  const std::string call(station.names.CallSign());
  const std::string name =
      call + ", " + std::string(station.names.City()) + ", " + std::string(station.names.State());
  if (changes.cut > 0) report.Remark(station.row, Finding::NameCut, name);
  if (changes.blanked > 0) report.Remark(station.row, Finding::NameBlanked, name);
  if (changes.empty > 0) report.Remark(station.row, Finding::NameEmpty, name);
  if (unknown)
    report.Remark(station.row, Finding::CountryUnknown, call + ", \"" + std::string(country) + '"');
}

/// The file of the channel, whose stations stand in front; they are taken away.
std::string TakeChannel(int channel, Stations& stations, ImportReport& report) {
  FieldChanges uncounted;
  std::size_t length = 0;  // found beforehand: a text that grows holds twice as much for a while
  for (auto at = stations.begin(); at != stations.end() && at->channel == channel; ++at)
    length += StationRecordText(channel, ToRecord(*at), uncounted).size();
  std::string text;
  text.reserve(length);
  for (; !stations.empty() && stations.front().channel == channel; stations.pop_front()) {
    FieldChanges changes;
    text += StationRecordText(channel, ToRecord(stations.front()), changes);
    RemarkOnNames(stations.front(), changes, report);
  }
  return text;
}

/// Calls `each` with every channel.
template <typename Each>
void ForEachChannel(Each each) {
  for (int channel = static_cast<int>(LowestChannel); IsOnRaster(channel);
       channel += static_cast<int>(ChannelStep))
    each(channel);
}

}  // namespace

void MakeStationFiles(Stations stations, std::string_view stationsLine, ImportReport& report,
                      const TakeFile& take) {
  take(std::string(kCallIndex), CallIndexText(stations, report));
  ForEachChannel([&](int channel) { take(FileName(channel), TakeChannel(channel, stations, report)); });
  take(std::string(kStationsLine), std::string(stationsLine) + "\r\n");
}

StationSet MakeStationSet(Stations stations, std::string_view stationsLine, ImportReport& report) {
  CountStations(stations, report);
  StationSet files;
  MakeStationFiles(std::move(stations), stationsLine, report,
                   [&](const std::string& name, std::string bytes) { files[name] = std::move(bytes); });
  return files;
}

}  // namespace kestrel
