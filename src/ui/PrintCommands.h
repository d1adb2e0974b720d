#pragma once

#include "ui/Platform.h"

class QWidget;

// The program's two print commands, with everything they tell the user.

namespace kestrel {

/// Prints the main map as it is shown, or the outlines alone where the user chooses them. Messages: an
/// outline file that cannot be read, a printer that cannot be opened or fails, "All patterns printed" after
/// the map, "Outline map printed" after the outlines. Cancelled, it prints nothing and says nothing.
void PrintMap(Platform& system, const DataFolder& folder, const SessionState& state, const ShownMap& map,
              QWidget* parent);

/// Prints the data, patterns and towers of the selected station, and says so.
void PrintStation(Platform& system, const DataFolder& folder, const SessionState& state,
                  const StationSelection& selection, QWidget* parent);

}  // namespace kestrel
