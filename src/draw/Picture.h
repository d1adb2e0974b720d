#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include "core/Result.h"
#include "map/DisplayList.h"
#include "map/MapLook.h"

// Drawings of the main map's sheet as pictures and files.

namespace kestrel {

/// Draws the sheet fitted into an image of `size` pixels, white behind it, moved as MoveSheet does.
QImage RenderImage(const DisplayList& drawing, QSize size, const MapLook& look = {}, Point moved = {});

/// Writes the drawing as a picture of `size` pixels, its kind told by the name's end: .png, .svg or .pdf (one
/// page, 96 pixels to the inch), as RenderImage does. The file is replaced as a whole or left as it was.
/// Errors: Malformed (another ending), Refused (by the system, or for lack of memory).
Result<Done> WritePicture(const DisplayList& drawing, QSize size, const QString& path,
                          const MapLook& look = {}, Point moved = {});

}  // namespace kestrel
