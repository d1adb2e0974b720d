#pragma once

#include "ui/Platform.h"

class QWidget;

// The program's two print commands, with everything they tell the user.

namespace kestrel {

/// Prints the main map as it is shown, or the outlines alone where the user chooses them. Messages: an
/// outline file that cannot be read, a printer that cannot be opened or fails, and, after the map,
/// "All patterns printed". Cancelled, it prints nothing and says nothing.
void PrintMap(Platform& system, const DataFolder& folder, const SessionState& state, const ShownMap& map,
              QWidget* parent);

/// Prints the data, patterns and towers of the selected station.
void PrintStation(Platform& system, const DataFolder& folder, const SessionState& state,
                  const StationSelection& selection, QWidget* parent);

}  // namespace kestrel
