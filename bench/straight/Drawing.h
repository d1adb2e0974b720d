#pragma once

#include <QImage>
#include <string>

#include "core/SessionState.h"

// The straight way to draw: every vertex projected by itself, every segment one drawLine, every label one
// drawText, antialiased.

namespace kestrel::straight {

/// The main map, its files read from `folder`, with all labels or none.
void DrawMainMap(QImage& image, const std::string& folder, const SessionState& state, bool labels = true);

/// Outlines and every channel of the whole-band scan.
void DrawScan(QImage& image, const std::string& folder, const SessionState& state, bool labels = true);

}  // namespace kestrel::straight
