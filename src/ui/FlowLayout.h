#pragma once

#include <QLayout>
#include <QList>

namespace kestrel {

/// Controls side by side in as many rows as the width asks for, for bars in panels that may be narrow.
/// Widgets that expand sideways share what is left of their row.
class FlowLayout final : public QLayout {
 public:
  FlowLayout() { setContentsMargins(0, 0, 0, 0); }
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override { items_ << item; }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return Arrange(QRect(0, 0, width, 0), false); }
  QSize minimumSize() const override;
  QSize sizeHint() const override { return minimumSize(); }
  void setGeometry(const QRect& rectangle) override;

 private:
  /// Returns the height that is needed.
  int Arrange(const QRect& rectangle, bool place) const;
  void PlaceRow(const QList<QLayoutItem*>& row, const QRect& rectangle) const;

  QList<QLayoutItem*> items_;
};

}  // namespace kestrel
