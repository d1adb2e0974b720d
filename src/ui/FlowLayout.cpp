#include "ui/FlowLayout.h"

#include <QWidget>
#include <algorithm>

namespace kestrel {
namespace {

int WidthOf(const QList<QLayoutItem*>& row, int spacing) {
  int width = 0;
  for (const QLayoutItem* item : row) width += item->sizeHint().width() + (width > 0 ? spacing : 0);
  return width;
}

}  // namespace

FlowLayout::~FlowLayout() {
  qDeleteAll(items_);
}

QLayoutItem* FlowLayout::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

QSize FlowLayout::minimumSize() const {
  QSize size;
  for (const QLayoutItem* item : items_)
    if (!item->isEmpty()) size = size.expandedTo(item->sizeHint());
  return size;
}

void FlowLayout::setGeometry(const QRect& rectangle) {
  QLayout::setGeometry(rectangle);
  Arrange(rectangle, true);
}

int FlowLayout::Arrange(const QRect& rectangle, bool place) const {
  const int gap = std::max(0, spacing());
  QList<QLayoutItem*> row;
  int top = rectangle.top();
  const auto endRow = [&] {
    int height = 0;
    for (const QLayoutItem* item : row) height = std::max(height, item->sizeHint().height());
    if (place) PlaceRow(row, {rectangle.left(), top, rectangle.width(), height});
    if (!row.isEmpty()) top += height + gap;
    row.clear();
  };
  for (QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    if (!row.isEmpty() && WidthOf(row + QList{item}, gap) > rectangle.width()) endRow();
    row << item;
  }
  endRow();
  return std::max(0, top - gap - rectangle.top());
}

void FlowLayout::PlaceRow(const QList<QLayoutItem*>& row, const QRect& rectangle) const {
  const int gap = std::max(0, spacing());
  auto expanding = std::count_if(row.begin(), row.end(), [](const QLayoutItem* item) {
    return item->expandingDirections().testFlag(Qt::Horizontal);
  });
  int rest = std::max(0, rectangle.width() - WidthOf(row, gap));
  int left = rectangle.left();
  const bool mirrored = parentWidget() && parentWidget()->layoutDirection() == Qt::RightToLeft;
  for (QLayoutItem* item : row) {
    int width = std::min(item->sizeHint().width(), rectangle.width());
    if (expanding > 0 && item->expandingDirections().testFlag(Qt::Horizontal)) {
      const int share = rest / static_cast<int>(expanding--);
      rest -= share;
      width += share;
    }
    const int x = mirrored ? rectangle.left() + rectangle.right() - left - width + 1 : left;
    item->setGeometry({x, rectangle.top(), width, rectangle.height()});
    left += width + gap;
  }
}

}  // namespace kestrel
