#pragma once

#include <QDialog>

#include "forms/Workspace.h"

namespace kestrel {

/// A window for a task: a dialog that works on the workspace and keeps within its screen.
class Form : public QDialog {
 public:
  void setVisible(bool visible) override;

 protected:
  /// `name` becomes the object name, `title` stands after the program's name.
  Form(const Workspace& workspace, QWidget* parent, const char* name, const QString& title);

  Workspace workspace_;

 private:
  bool fitted_ = false;
};

}  // namespace kestrel
