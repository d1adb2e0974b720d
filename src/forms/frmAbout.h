#pragma once

#include <QDialog>

#include "forms/Workspace.h"

namespace kestrel {

/// Title, version, copyright and attributions, and the way to the system's own information tool.
class frmAbout final : public QDialog {
 public:
  explicit frmAbout(const Workspace& workspace, QWidget* parent = nullptr);

 private:
  void StartSystemInformation();

  Workspace workspace_;
};

}  // namespace kestrel
