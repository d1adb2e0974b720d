#include "data/StationSet.h"

#include "core/Band.h"
#include "data/DataFolder.h"

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

}  // namespace kestrel
