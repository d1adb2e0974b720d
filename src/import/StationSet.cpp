#include "import/StationSet.h"

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
  record.HoursCode = station.hours;
  record.Latitude = static_cast<float>(station.position.latitude);
  record.Longitude = static_cast<float>(station.position.longitude);
  record.PowerKW = static_cast<float>(station.powerKW);
  if (!station.towers) return record;
  for (const Tower& tower : *station.towers) {
    const auto i = static_cast<std::size_t>(++record.TowerCount);
    record.Switch[i] = "0";
    record.Fields[i] = static_cast<float>(tower.field);
    record.Heights[i] = static_cast<float>(tower.height);
    record.Phases[i] = static_cast<float>(tower.phase);
    record.Spacings[i] = static_cast<float>(tower.spacing);
    record.Bearings[i] = static_cast<float>(tower.bearing);
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

}  // namespace

const std::vector<std::string>& StationSetNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> all;
    for (int channel = static_cast<int>(LowestChannel); IsOnRaster(channel);
         channel += static_cast<int>(ChannelStep))
      all.push_back(FileName(channel));
    all.emplace_back(kCallIndex);
    all.emplace_back(kStationsLine);
    return all;
  }();
  return names;
}

StationSet MakeStationSet(const Stations& stations, std::string_view stationsLine, ImportReport& report) {
  StationSet files;
  for (const std::string& name : StationSetNames()) files[name];
  files[std::string(kCallIndex)] = CallIndexText(stations, report);
  for (const Station& station : stations) {
    FieldChanges changes;
    files[FileName(station.channel)] += StationRecordText(station.channel, ToRecord(station), changes);
    RemarkOnNames(station, changes, report);
  }
  for (auto& [name, bytes] : files) bytes.shrink_to_fit();
  files[std::string(kStationsLine)] = std::string(stationsLine) + "\r\n";
  report.stations = SiteCount(stations);
  report.records = static_cast<int>(stations.size());
  return files;
}

}  // namespace kestrel
