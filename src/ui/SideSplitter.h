#pragma once

#include <QSplitter>

namespace kestrel {

/// A widget with a panel beside it: at its right where there is more width than height, else below. The
/// panel's share of the room is kept between runs, for either side by itself.
class SideSplitter final : public QSplitter {
 public:
  /// `setting` begins the names under which the shares are kept.
  SideSplitter(QWidget* main, QString setting, QWidget* parent = nullptr);

  /// The panel, for once.
  void SetPanel(QWidget* panel);

  /// One that holds either part: the shape, and with it where the panel stands, follows the size, so that the
  /// smallest one of the present shape would keep the other shape from ever being taken.
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QString ShareSetting() const;
  void TakeShape();
  void TakeShare();

  QString setting_;
};

}  // namespace kestrel
