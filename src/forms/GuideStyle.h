#pragma once

#include <QPalette>

class QTextDocument;

namespace kestrel {

/// Gives a page that was read from Markdown its colours and distances: links, code and tables that can be
/// read on the palette's base, light or dark, and code in letters as large as the text's.
void StyleGuidePage(QTextDocument& page, const QPalette& palette);

}  // namespace kestrel
