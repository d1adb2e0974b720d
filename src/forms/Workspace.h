#pragma once

#include "core/SessionState.h"
#include "data/DataFolder.h"
#include "ui/Platform.h"

namespace kestrel {

/// What every window works with. `main` owns the parts; they outlive all windows.
struct Workspace {
  SessionState& State;
  const DataFolder& Folder;
  Platform& System;
};

}  // namespace kestrel
