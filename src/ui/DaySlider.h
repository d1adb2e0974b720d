#pragma once

#include <QSlider>
#include <optional>
#include <vector>

#include "core/Moment.h"
#include "core/Sun.h"

namespace kestrel {

/// A slider over a day of universal time, in steps of five minutes. It shows day, twilight and night at home,
/// a mark above where the sun rises and sets there, and one below where it does at one more place. The page
/// keys are not its own.
class DaySlider final : public QSlider {
 public:
  static constexpr int MinutesOfStep = 5;

  explicit DaySlider(QWidget* parent = nullptr);

  /// `midnight` begins the day shown.
  void ShowSun(Moment midnight, const SunSite& home, const std::optional<SunSite>& station);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {80, sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// The arrow keys are its own while it has the focus, whatever they do in the window.
  bool event(QEvent* event) override;

 private:
  /// Sunrises and sunsets of the day shown, in minutes from its midnight.
  std::vector<double> EventsAt(const SunSite& site) const;
  int XOf(double minutes) const;
  int HandleLength() const;

  Moment midnight_;
  SunSite home_;
  std::vector<double> homeEvents_;
  std::vector<double> stationEvents_;
};

}  // namespace kestrel
