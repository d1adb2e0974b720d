#pragma once

namespace kestrel {

/// Tells screen readers what our own widgets are: a window of the program is a window, and a surface that
/// shows a drawing is a graphic, with the names and descriptions that the windows give them. To be called
/// once.
void InstallAccessibility();

}  // namespace kestrel
