#pragma once

#include <string>
#include <vector>

#include "data/StationFile.h"

// The station files that are measured.

namespace kestrel::bench {

/// A folder of data files and what the titles call it.
struct Band {
  std::string Name;
  std::string Folder;
};

/// The demonstration band; the real one too where the build names it.
std::vector<Band> Bands();

/// All channels, 530 to 1700 kHz.
std::vector<float> Channels();

std::string StationPath(const Band& band, float channel);

/// The records of a channel.
std::vector<StationRecord> ReadChannel(const Band& band, float channel);

/// The channel whose number of records is nearest to `records`, itself and its neighbours counted when
/// `adjacents`.
float ChannelOf(const Band& band, std::size_t records, bool adjacents);

}  // namespace kestrel::bench
