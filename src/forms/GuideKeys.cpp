#include "forms/GuideKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "forms/GuidePages.h"
#include "forms/frmGuide.h"

namespace kestrel {
namespace {

/// Whether the widget takes this key as text.
bool IsTextFor(QWidget& widget, const QKeyEvent& key) {
  QKeyEvent question(QEvent::ShortcutOverride, key.key(), key.modifiers(), key.text());
  question.ignore();
  QCoreApplication::sendEvent(&widget, &question);
  return question.isAccepted();
}

}  // namespace

GuideKeys::GuideKeys(Platform& system, const QStringList& folders) : system_(system), folders_(folders) {
  qApp->installEventFilter(this);
  // A menu of the guide's that was open once keeps the application from ending while the guide is there.
  connect(qApp, &QGuiApplication::lastWindowClosed, this, [this] { delete guide_; });
}

GuideKeys::~GuideKeys() {
  delete guide_;
}

bool GuideKeys::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWidgetType()) return false;
  auto& widget = static_cast<QWidget&>(*watched);
  // The guide, which is not modal, is asked for last: it hides once more while it is being destroyed.
  if (event->type() == QEvent::Hide && widget.isWindow() && widget.isModal() && guide_) guide_->StayUsable();
  if (event->type() == QEvent::HelpRequest) {
    Open(PageOf(widget), widget);
    return true;
  }
  if (event->type() != QEvent::KeyPress || QApplication::activePopupWidget() != nullptr) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier) {
    Open(PageOf(widget), widget);
    return true;
  }
  if (key.text() != "?" || IsTextFor(widget, key)) return false;
  Open(KeysPageOf(widget), widget);
  return true;
}

void GuideKeys::Open(const QString& page, QWidget& asker) {
  if (!guide_) guide_ = new frmGuide(system_, folders_);
  guide_->Open(page, asker.window());
}

void AskForGuide(QWidget& widget) {
  QEvent question(QEvent::HelpRequest);
  QCoreApplication::sendEvent(&widget, &question);
}

}  // namespace kestrel
