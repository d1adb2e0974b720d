#pragma once

#include <QPainter>

#include "map/PrintedPages.h"

namespace kestrel {

/// Paints a page on a printer, a PDF or a preview: `painter` is active on it, its origin is the upper left
/// corner inside the margins, and `paintable` is the size inside the margins in its units, of which there are
/// `unitsPerInch`. Everything is vectors; lines of width 1 are a hair of a 200th of an inch, and no text is
/// smaller than 8 points.
void PaintPage(QPainter& painter, const PrintedPage& page, QSizeF paintable, double unitsPerInch,
               bool inColor);

}  // namespace kestrel
