#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "core/Moment.h"
#include "core/Position.h"

class QDateEdit;
class QLabel;
class QPushButton;
class QTimer;

namespace kestrel {

class DaySlider;

/// The bar that chooses a moment: date, a slider over the day of universal time, the time there and at the
/// computer's own place, a button that follows the clock and one that lets the day pass.
class TimeBar final : public QWidget {
 public:
  /// `clock` tells the present moment.
  TimeBar(std::function<Moment()> clock, QWidget* parent = nullptr);

  Moment At() const { return at_; }
  /// Moments outside FirstYear to LastYear become the first or last one of these. Follows the clock no
  /// longer.
  void SetMoment(Moment moment);
  /// From now on each minute the clock's.
  void FollowClock();

  /// The places whose sunrise and sunset the slider shows.
  void ShowHome(const Position& home);
  void ShowStation(const std::optional<Position>& station);

  std::function<void()> Changed;  ///< called after each change of the moment
  std::function<void()> Settled;  ///< called when the slider has been let go

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void Become(Moment moment);
  void Show();
  void ShowSun();
  void StepOn();

  std::function<Moment()> clock_;
  Moment at_;
  Position home_;
  std::optional<Position> station_;
  QPushButton* now_;
  QPushButton* play_;
  QDateEdit* date_;
  DaySlider* slider_;
  QLabel* text_;
  QTimer* minute_;
  QTimer* playing_;
};

}  // namespace kestrel
