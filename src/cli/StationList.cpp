#include "cli/StationList.h"

#include "cli/Console.h"
#include "data/DataFolder.h"

namespace kestrel::cli {

std::vector<ListedStation> ListedStations(const QByteArray& bytes, float frequency,
                                          const SessionState& state) {
  const MapProjection projection(state.Home(), state.ScaleFactor);
  StationFileReader reader(StationFileName(frequency).toStdString(),
                           {bytes.constData(), static_cast<std::size_t>(bytes.size())});
  std::vector<ListedStation> stations;
  while (const StationRecord* record = reader.Next())
    stations.push_back({*record, GreatCircle(state.Home(), record->At()), projection.Station(record->At())});
  Say(reader.Notes());
  return stations;
}

CsvWriter StationCsv() {
  return CsvWriter({"frequency", "call", "city", "state", "country", "hours", "latitude", "longitude",
                    "power_kw", "towers", "distance_km", "bearing_deg", "x", "y"});
}

void AddStations(CsvWriter& csv, float frequency, const std::vector<ListedStation>& stations) {
  for (const ListedStation& station : stations) {
    csv.BeginObject().Key("frequency").Number(frequency);
    WriteStation(csv, station);
    csv.EndObject();
  }
}

}  // namespace kestrel::cli
