#pragma once

#include "core/SessionState.h"

// The choices of the options window that are made for the listener.

namespace kestrel {

/// Colours of 0 were never chosen: day becomes green, night stays black, unlimited red, critical cyan, the
/// adjacent ones blue. A map language other than "fr" and "es" becomes "en".
void FillUnsetOptions(SessionState& state);

/// The recommended colours: green, a near-black grey, red, cyan and orange. They differ on purpose from what
/// unset colours become: the grey stays apart from "unset", the orange from the map's blue. Further adjacent
/// colours and the language stay as they are.
void SetDefaultColors(SessionState& state);

}  // namespace kestrel
