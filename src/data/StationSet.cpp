#include "data/StationSet.h"

#include <set>
#include <tuple>

#include "core/Band.h"
#include "core/Text.h"
#include "data/StationFile.h"

namespace kestrel {

const std::vector<std::string>& StationSetNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> all;
    for (float channel = LowestChannel; channel <= HighestChannel; channel += ChannelStep)
      all.push_back(StationFileName(channel).toStdString());
    all.emplace_back("StationsCall.DAT");
    all.emplace_back("Stations.txt");
    return all;
  }();
  return names;
}

int StationsIn(const DataFolder& folder) {
  std::size_t count = 0;
  for (float channel = LowestChannel; channel <= HighestChannel; channel += ChannelStep) {
    const Result<QByteArray> bytes = folder.Read(StationFileName(channel));
    if (!bytes) continue;
    std::set<std::tuple<std::string, float, float>> sites;
    StationLineReader reader({bytes->constData(), static_cast<std::size_t>(bytes->size())});
    while (const auto line = reader.Next()) {
      const Position at = line->At();
      sites.emplace(Trim(line->CallSign), at.Latitude, at.Longitude);
    }
    count += sites.size();
  }
  return static_cast<int>(count);
}

}  // namespace kestrel
