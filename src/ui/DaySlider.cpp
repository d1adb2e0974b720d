#include "ui/DaySlider.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPolygonF>
#include <QStyleOptionSlider>
#include <QStylePainter>
#include <cmath>

namespace kestrel {
namespace {

constexpr int kMinutesOfDay = 1440;
constexpr int kBandHeight = 10;
constexpr int kMarkHeight = 5;
// Of the sky, in light and dark desktops alike.
constexpr QRgb kDay = 0xFFF6E7A8;
constexpr QRgb kTwilight = 0xFF8FA3C4;
constexpr QRgb kNight = 0xFF33415F;

QRgb SkyAt(double elevation) {
  return elevation >= SunriseElevation ? kDay : elevation >= TwilightElevation ? kTwilight : kNight;
}

}  // namespace

DaySlider::DaySlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setRange(0, kMinutesOfDay / MinutesOfStep - 1);
  setPageStep(60 / MinutesOfStep);
  setFocusPolicy(Qt::StrongFocus);
}

QSize DaySlider::sizeHint() const {
  const QSize usual = QSlider::sizeHint();
  return {300, std::max(usual.height(), kBandHeight + 2 * kMarkHeight + 2)};
}

void DaySlider::ShowSun(Moment midnight, const SunSite& home, const std::optional<SunSite>& station) {
  midnight_ = midnight;
  home_ = home;
  homeEvents_ = EventsAt(home);
  stationEvents_ = station ? EventsAt(*station) : std::vector<double>();
  update();
}

std::vector<double> DaySlider::EventsAt(const SunSite& site) const {
  std::vector<double> events;
  // A day of universal time holds parts of the sun's days around it.
  for (const int day : {-1, 0, 1}) {
    const SunDay sunDay = SunDayAt(site, midnight_ + std::chrono::hours(12 + 24 * day));
    for (const std::optional<Moment>& event : {sunDay.Sunrise, sunDay.Sunset}) {
      if (!event) continue;
      const double minutes = std::chrono::duration<double, std::ratio<60>>(*event - midnight_).count();
      if (minutes >= 0 && minutes < kMinutesOfDay) events.push_back(minutes);
    }
  }
  return events;
}

int DaySlider::HandleLength() const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  return style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
}

int DaySlider::XOf(double minutes) const {
  const int room = width() - HandleLength();
  const double share = minutes / (maximum() * MinutesOfStep);
  const double along = layoutDirection() == Qt::RightToLeft ? 1 - share : share;
  return HandleLength() / 2 + static_cast<int>(std::lround(along * room));
}

void DaySlider::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  const int top = (height() - kBandHeight) / 2;
  for (int step = minimum(); step <= maximum(); ++step) {
    const int from = XOf(step * MinutesOfStep), to = XOf((step + 1) * MinutesOfStep);
    const Sun sun(midnight_ + std::chrono::minutes(step * MinutesOfStep));
    painter.fillRect(QRect(std::min(from, to), top, std::abs(to - from), kBandHeight),
                     QColor(SkyAt(sun.Elevation(home_))));
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const auto drawMarks = [&](const std::vector<double>& events, const QColor& color, int tip, int base) {
    painter.setBrush(color);
    for (const double minutes : events) {
      const int x = XOf(minutes);
      painter.drawPolygon(
          QPolygonF({QPointF(x, tip), QPointF(x - kMarkHeight, base), QPointF(x + kMarkHeight, base)}));
    }
  };
  drawMarks(homeEvents_, QColor(0xD0, 0x20, 0x20), top, top - kMarkHeight);
  drawMarks(stationEvents_, QColor(0x30, 0x60, 0xE0), top + kBandHeight, top + kBandHeight + kMarkHeight);
  painter.setRenderHint(QPainter::Antialiasing, false);

  QStyleOptionSlider option;
  initStyleOption(&option);
  option.subControls = QStyle::SC_SliderHandle;
  painter.drawComplexControl(QStyle::CC_Slider, option);
}

bool DaySlider::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isArrow = key->key() >= Qt::Key_Left && key->key() <= Qt::Key_Down;
    if (isArrow && !(key->modifiers() & ~Qt::KeypadModifier)) event->accept();
  }
  return QSlider::event(event);
}

void DaySlider::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) return event->ignore();
  QSlider::keyPressEvent(event);
}

}  // namespace kestrel
