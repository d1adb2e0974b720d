#include "ui/FitToScreen.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace kestrel {
namespace {

bool Holds(const QSize& room, const QSize& size) {
  return size.boundedTo(room) == size;
}

/// Puts all that the dialog shows onto a page that scrolls in it.
void MakeScrolling(QDialog& dialog) {
  // Both in the dialog from the beginning, or the order in which the focus moves would change.
  auto* field = new QScrollArea(&dialog);
  auto* page = new QWidget(field);
  page->setLayout(dialog.layout());
  field->setWidget(page);
  field->setWidgetResizable(true);
  field->setFrameShape(QFrame::NoFrame);
  field->setFocusPolicy(Qt::NoFocus);
  auto* whole = new QVBoxLayout(&dialog);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(field);
  QObject::connect(qApp, &QApplication::focusChanged, field, [field, page](QWidget*, QWidget* now) {
    if (now != nullptr && page->isAncestorOf(now)) field->ensureWidgetVisible(now);
  });
}

}  // namespace

void FitToScreen(QDialog& dialog) {
  const QSize frame(0, 2 * dialog.fontMetrics().height());
  const QSize room = dialog.screen()->availableSize() - frame;
  const bool sized = dialog.testAttribute(Qt::WA_Resized);
  const QSize smallest = dialog.minimumSizeHint();
  QSize wished = sized ? dialog.size() : dialog.sizeHint();
  const bool fits = dialog.layout() == nullptr || Holds(room, smallest);
  if (!fits) {
    MakeScrolling(dialog);
    const int bar = dialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &dialog);
    wished = wished.expandedTo(smallest) + QSize(bar, bar);
  }
  if (sized || !fits) dialog.resize(wished.boundedTo(room));
}

}  // namespace kestrel
