#pragma once

#include <QDialog>

#include "data/StationLookup.h"
#include "forms/Workspace.h"

namespace kestrel {

/// The towers of the selected record as a table.
class frmShowTowers final : public QDialog {
 public:
  frmShowTowers(const Workspace& workspace, QWidget* parent, const StationSelection& selection);
};

}  // namespace kestrel
