#pragma once

#include <functional>
#include <string>
#include <vector>

#include "data/DataFolder.h"
#include "field/Ranking.h"

namespace kestrel {

/// All channels of a data folder seen from home. Files are read and records prepared once, by several
/// processors; then the band is ranked at any moments.
class BandRanking {
 public:
  /// Told in the caller's thread, from time to time, how many of how many channels are done; returns whether
  /// to go on.
  using Progress = std::function<bool(std::size_t done, std::size_t all)>;

  struct Channel {
    float Frequency;  ///< kHz
    ChannelRanking Records;
  };

  /// Home and conductivity as ChannelRanking takes them. A channel without a station file is left out.
  BandRanking(const DataFolder& folder, const Position& home, double conductivity,
              const Progress& progress = {});

  /// The same for some channels, in that order.
  BandRanking(const DataFolder& folder, const std::vector<float>& frequencies, const Position& home,
              double conductivity, const Progress& progress = {});

  /// Upwards, or as asked for. Where the progress said stop, some are missing.
  const std::vector<Channel>& Channels() const { return channels_; }
  bool WasStopped() const { return wasStopped_; }

  /// What the readers left out, and files that could not be read.
  const std::vector<std::string>& Notes() const { return notes_; }

  /// One for each of Channels().
  std::vector<Ranking> Rank(Moment moment, const RankingChoices& choices);

 private:
  std::vector<Channel> channels_;
  std::vector<std::string> notes_;
  bool wasStopped_ = false;
};

}  // namespace kestrel
