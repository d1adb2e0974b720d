#pragma once

#include <QSize>
#include <QString>

#include "core/Result.h"
#include "map/DisplayList.h"
#include "map/Labels.h"

// Drawings of the main map's sheet as files.

namespace kestrel {

/// Writes the drawing as a picture of `size` pixels, its kind told by the name's end: .png, .svg or .pdf (one
/// page, 96 pixels to the inch), with the labels chosen. The file is replaced as a whole or left as it was.
/// Errors: Malformed (another ending), Refused (by the system, or for lack of memory).
Result<Done> WritePicture(const DisplayList& drawing, QSize size, const QString& path,
                          LabelChoice labels = LabelChoice::Fitting);

}  // namespace kestrel
