#pragma once

#include <QIcon>

namespace kestrel {

/// Icons of the view commands, drawn in the text colour of the theme: a magnifying glass with a plus or minus
/// for the zoom, a small pattern growing or shrinking for the pattern size.
QIcon ZoomIcon(bool in, const QColor& ink);
QIcon PatternIcon(bool larger, const QColor& ink);

}  // namespace kestrel
