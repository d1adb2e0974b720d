#pragma once

#include <atomic>
#include <cstddef>
#include <future>
#include <vector>

#include "core/Result.h"
#include "data/DataFolder.h"
#include "map/Canvas.h"
#include "map/MapProjection.h"

namespace kestrel {

/// The whole-band scan: all channels from the lowest to the highest, one after the other, so that each
/// can be shown as it comes. While one is drawn and shown, the files of those that follow are read by other
/// threads; the scan itself belongs to one.
class BandScan {
 public:
  /// Reads ahead with so many processors, the caller's among them; 0: with those of the machine.
  BandScan(const DataFolder& folder, const MapProjection& projection, int processors = 0);
  /// Waits for the files being read.
  ~BandScan();

  bool AtEnd() const { return present_ == readings_.size(); }
  /// The channel that comes next, kHz.
  float Channel() const;

  /// Draws the next channel: for every station line of its file a red cross at the station's place and the
  /// channel's number beside it, no pattern. A record whose position is no finite number is left out. Errors:
  /// the file's (NotFound for a channel without stations); nothing is drawn then. REQUIRES: not AtEnd().
  Result<Done> DrawNext(Canvas& canvas);

 private:
  using Marks = Result<std::vector<StationMark>>;

  /// Reads the first channel that no thread has begun. Returns whether there was one.
  bool ReadOne();

  std::vector<std::packaged_task<Marks()>> readings_;  // by channel
  std::atomic<std::size_t> next_ = 0;                  // to be read
  std::size_t present_ = 0;                            // to be drawn
  std::vector<std::future<void>> readers_;             // beside the caller, as far as there are threads
};

}  // namespace kestrel
