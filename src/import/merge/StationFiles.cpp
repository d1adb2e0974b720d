#include "import/merge/StationFiles.h"

#include <utility>

#include "core/Band.h"
#include "data/StationFile.h"
#include "data/StationLineText.h"
#include "import/Countries.h"
#include "import/merge/CallIndex.h"

namespace kestrel {
namespace {

constexpr std::string_view kCallIndex = "StationsCall.DAT";
constexpr std::string_view kStationsLine = "Stations.txt";

std::string FileName(int channel) {
  return std::to_string(channel) + "x.dat";
}

StationRecord ToRecord(const Station& station) {
  StationRecord record;
  record.CallSign = station.Names.CallSign();
  record.City = station.Names.City();
  record.State = station.Names.State();
  record.Country = CountryName(station.Names.Country());
  if (record.Country.empty()) record.Country = station.Names.Country();
  record.HoursCode = HoursLetter(station.Hours);
  record.Latitude = static_cast<float>(station.Position.Latitude);
  record.Longitude = static_cast<float>(station.Position.Longitude);
  record.PowerKW = static_cast<float>(station.PowerKW);
  if (!station.Towers) return record;
  for (const Tower& tower : *station.Towers) {
    const auto i = static_cast<std::size_t>(++record.TowerCount);
    record.Switch[i] = "0";
    record.Fields[i] = tower.Field;
    record.Heights[i] = tower.Height;
    record.Phases[i] = tower.Phase;
    record.Spacings[i] = tower.Spacing;
    record.Bearings[i] = tower.Bearing;
  }
  return record;
}

void RemarkOnNames(const Station& station, const FieldChanges& changes, ImportReport& report) {
  const std::string_view country = station.Names.Country();
  const bool unknown = CountryName(country).empty();
  if (changes.cut + changes.blanked + changes.empty == 0 && !unknown) return;
  const std::string call(station.Names.CallSign());
  const std::string name =
      call + ", " + std::string(station.Names.City()) + ", " + std::string(station.Names.State());
  if (changes.cut > 0) report.Remark(station.Row, Finding::NameCut, name);
  if (changes.blanked > 0) report.Remark(station.Row, Finding::NameBlanked, name);
  if (changes.empty > 0) report.Remark(station.Row, Finding::NameEmpty, name);
  if (unknown)
    report.Remark(station.Row, Finding::CountryUnknown, call + ", \"" + std::string(country) + '"');
}

/// The file of the channel, whose stations stand in front; they are taken away.
std::string TakeChannel(int channel, Stations& stations, ImportReport& report) {
  FieldChanges uncounted;
  std::size_t length = 0;  // found beforehand: a text that grows holds twice as much for a while
  for (auto at = stations.begin(); at != stations.end() && at->Channel == channel; ++at)
    length += StationRecordText(channel, ToRecord(*at), uncounted).size();
  std::string text;
  text.reserve(length);
  for (; !stations.empty() && stations.front().Channel == channel; stations.pop_front()) {
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

}  // namespace kestrel
