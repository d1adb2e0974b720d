#pragma once

#include "forms/Form.h"

namespace kestrel {

/// Title, version, copyright and attributions, and the way to the system's own information tool.
class frmAbout final : public Form {
 public:
  explicit frmAbout(const Workspace& workspace, QWidget* parent = nullptr);

 private:
  void StartSystemInformation();
};

}  // namespace kestrel
