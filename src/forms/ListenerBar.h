#pragma once

#include <QWidget>
#include <functional>

#include "forms/ListenerChoices.h"

class QComboBox;
class QSpinBox;

namespace kestrel {

class FlowLayout;

/// The controls of the listener's choices, added to a bar of other controls. They begin with the choices
/// kept, and keep every change.
class ListenerBar final : public QObject {
 public:
  ListenerBar(FlowLayout& bar, QObject* parent);

  ListenerChoices Choices() const;

  /// Called after a change.
  std::function<void()> Changed;

 private:
  void Keep();

  QComboBox* ground_;
  QSpinBox* needed_;
  QComboBox* hours_;
};

/// A control with its name before it, which stay together in a bar.
QWidget* Named(const char* labelName, const QString& caption, QWidget* control);

}  // namespace kestrel
