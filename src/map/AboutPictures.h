#pragma once

#include "core/SessionState.h"
#include "data/DataFolder.h"
#include "map/Canvas.h"
#include "map/Sheet.h"

// Small pictures made for the windows: samples of a pattern and the two pictures of the program.

namespace kestrel {

inline constexpr SheetArea SampleArea = {0, 0, 800, 700};

/// The outline of a small array's pattern in the colour given, as the map draws it.
void DrawSampleOutline(Canvas& canvas, ColorValue color);

inline constexpr SheetArea ArrayPictureArea = {0, 0, 4000, 4000};

/// An array of towers at night and the field around it.
void DrawArrayPicture(Canvas& canvas);

/// A part of the main map's sheet.
inline constexpr SheetArea MapPictureArea = {1500, 0, 9000, 9000};

/// The Americas with the stations of the local channels.
void DrawMapPicture(Canvas& canvas, const DataFolder& folder);

}  // namespace kestrel
