#include "ui/Accessible.h"

#include <QAccessibleWidget>

#include "ui/MapSurface.h"

namespace kestrel {
namespace {

/// A window, also one that is a surface, or a surface within a window.
class AccessibleSurface final : public QAccessibleWidget {
 public:
  explicit AccessibleSurface(QWidget* widget) : QAccessibleWidget(widget) {}
  QAccessible::Role role() const override {
    return widget()->isWindow() ? QAccessible::Window : QAccessible::Graphic;
  }
  QString text(QAccessible::Text kind) const override {
    const auto* surface = dynamic_cast<const MapSurface*>(widget());
    const bool words = kind == QAccessible::Description && surface != nullptr && surface->Words;
    return words ? surface->Words() : QAccessibleWidget::text(kind);
  }
};

/// Our classes have no meta-object of their own, so they come as their base.
QAccessibleInterface* InterfaceOf(const QString& className, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (className != "QWidget" || widget == nullptr) return nullptr;
  const bool plain = widget->metaObject() == &QWidget::staticMetaObject;
  const bool surface = dynamic_cast<MapSurface*>(widget) != nullptr;
  return surface || (plain && widget->isWindow()) ? new AccessibleSurface(widget) : nullptr;
}

}  // namespace

void InstallAccessibility() {
  QAccessible::installFactory(InterfaceOf);
}

}  // namespace kestrel
