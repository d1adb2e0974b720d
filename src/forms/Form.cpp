#include "forms/Form.h"

#include <utility>

#include "ui/FitToScreen.h"

namespace kestrel {

Form::Form(const Workspace& workspace, QWidget* parent, const char* name, const QString& title)
    : QDialog(parent), workspace_(workspace) {
  setObjectName(name);
  setWindowTitle("KestrelII - " + title);
}

void Form::setVisible(bool visible) {
  if (visible && !std::exchange(fitted_, true)) FitToScreen(*this);
  QDialog::setVisible(visible);
}

}  // namespace kestrel
