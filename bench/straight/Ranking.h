#pragma once

#include <string>
#include <vector>

#include "core/Moment.h"
#include "data/StationFile.h"

// The ranking of a channel, each record by itself and everything anew.

namespace kestrel::straight {

struct RankedRecord {
  std::size_t Record = 0;
  double Ground = 0, SkyMedian = 0, SkyUpperDecile = 0, Total = 0, High = 0;
  std::string Word;
};

/// The records on the air by the rule `auto`, strongest first, judged by 26 dB.
std::vector<RankedRecord> Rank(const std::vector<StationRecord>& records, double frequencyKHz,
                               const Position& home, double conductivity, Moment moment);

}  // namespace kestrel::straight
