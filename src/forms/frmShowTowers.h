#pragma once

#include "data/StationLookup.h"
#include "forms/Form.h"

namespace kestrel {

/// The towers of the selected record as a table.
class frmShowTowers final : public Form {
 public:
  frmShowTowers(const Workspace& workspace, QWidget* parent, const StationSelection& selection);

 protected:
  /// Ctrl+C copies the table.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString text_;  // the table, for the clipboard
};

}  // namespace kestrel
