#pragma once

#include "data/StationLookup.h"
#include "forms/Form.h"

namespace kestrel {

/// The towers of the selected record as a table, which can be copied as text.
class frmShowTowers final : public Form {
 public:
  frmShowTowers(const Workspace& workspace, QWidget* parent, const StationSelection& selection);
};

}  // namespace kestrel
