#include "ui/SideSplitter.h"

#include <QEvent>
#include <QSettings>
#include <algorithm>
#include <utility>

namespace kestrel {
namespace {

constexpr double kWide = 1.4;  // width over height from which the panel stands at the side
constexpr double kUsualShare = 0.42;

}  // namespace

SideSplitter::SideSplitter(QWidget* main, QString setting, QWidget* parent)
    : QSplitter(parent), setting_(std::move(setting)) {
  addWidget(main);
  setCollapsible(0, false);
  setStretchFactor(0, 1);
}

void SideSplitter::SetPanel(QWidget* panel) {
  addWidget(panel);
  setCollapsible(1, false);
  panel->installEventFilter(this);
  connect(this, &QSplitter::splitterMoved, this, [this] {
    const QList<int> room = sizes();
    const int all = room[0] + room[1];
    if (all > 0) QSettings().setValue(ShareSetting(), static_cast<double>(room[1]) / all);
  });
  TakeShape();
}

QString SideSplitter::ShareSetting() const {
  return setting_ + (orientation() == Qt::Horizontal ? "/right" : "/below");
}

void SideSplitter::TakeShape() {
  const Qt::Orientation wanted = width() > kWide * height() ? Qt::Horizontal : Qt::Vertical;
  if (wanted == orientation()) return;
  setOrientation(wanted);
  TakeShare();
}

void SideSplitter::TakeShare() {
  if (count() < 2) return;
  bool isNumber = false;
  const double kept = QSettings().value(ShareSetting()).toDouble(&isNumber);
  const double share = isNumber && kept > 0 && kept < 1 ? kept : kUsualShare;
  const int all = orientation() == Qt::Horizontal ? width() : height();
  const int panel = static_cast<int>(share * all);
  setSizes({all - panel, panel});
}

QSize SideSplitter::minimumSizeHint() const {
  QSize least;
  for (int i = 0; i < count(); ++i) {
    const QWidget* part = widget(i);
    if (!part->isHidden()) least = least.expandedTo(part->minimumSizeHint().expandedTo(part->minimumSize()));
  }
  return least;
}

bool SideSplitter::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Show) TakeShare();
  return false;
}

void SideSplitter::resizeEvent(QResizeEvent* event) {
  TakeShape();
  QSplitter::resizeEvent(event);
}

}  // namespace kestrel
