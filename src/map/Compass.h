#pragma once

#include "map/Canvas.h"

namespace kestrel {

/// The bearing rose: a spoke every 10 degrees around home with its bearing in a small box at the outer end.
/// `aspectRatio` widens it as it widens patterns; it does not depend on the map's scale.
void DrawCompass(Canvas& canvas, float aspectRatio);

}  // namespace kestrel
