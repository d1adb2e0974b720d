#pragma once

#include "core/Result.h"
#include "data/DataFolder.h"
#include "map/Canvas.h"
#include "map/MapProjection.h"

namespace kestrel {

/// Draws one channel of the whole-band scan: for every station line of its file a red cross at the station's
/// place and the channel's number beside it, no pattern. A record whose position is no finite number is left
/// out. The caller goes from LowestChannel to HighestChannel by ChannelStep and may stop between any two.
/// Errors: the file's (NotFound for a channel without stations); nothing is drawn then.
Result<Done> DrawScannedChannel(Canvas& canvas, const DataFolder& folder, const MapProjection& projection,
                                float channel);

}  // namespace kestrel
