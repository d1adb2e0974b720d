#pragma once

class QDialog;

namespace kestrel {

/// Keeps a dialog that is about to be shown within its screen. What is laid out in it scrolls where even its
/// smallest size is too large.
void FitToScreen(QDialog& dialog);

}  // namespace kestrel
