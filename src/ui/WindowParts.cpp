#include "ui/WindowParts.h"

#include <QApplication>
#include <QWidget>
#include <utility>

namespace kestrel {
namespace {

bool HasFocus(const QWidget& part) {
  const QWidget* focus = QApplication::focusWidget();
  return focus == &part || part.isAncestorOf(focus);
}

void EnterPart(QWidget& part) {
  if (QWidget* last = part.focusWidget(); last && last != &part && last->isEnabled() && last->isVisible())
    return last->setFocus(Qt::OtherFocusReason);
  for (QWidget* control : part.findChildren<QWidget*>())
    if (control->focusPolicy() & Qt::TabFocus && control->isEnabled() && control->isVisible())
      return control->setFocus(Qt::OtherFocusReason);
  part.setFocus(Qt::OtherFocusReason);
}

}  // namespace

void WindowParts::Add(QWidget& part, std::function<void()> enter) {
  if (!enter) enter = [&part] { EnterPart(part); };
  parts_.push_back({&part, std::move(enter)});
}

void WindowParts::Next() {
  std::size_t present = parts_.size() - 1;  // of the last one the next is the first
  for (std::size_t i = 0; i < parts_.size(); ++i)
    if (HasFocus(*parts_[i].Widget)) present = i;
  for (std::size_t step = 1; step <= parts_.size(); ++step) {
    const Part& part = parts_[(present + step) % parts_.size()];
    if (part.Widget->isVisible() && part.Widget->isEnabled()) return part.Enter();
  }
}

}  // namespace kestrel
