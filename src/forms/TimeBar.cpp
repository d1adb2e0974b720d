#include "forms/TimeBar.h"

#include <QDateEdit>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimeZone>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "core/Sun.h"
#include "ui/Controls.h"
#include "ui/DaySlider.h"

namespace kestrel {
namespace {

constexpr int kLookAtClock = 1000;  // milliseconds
constexpr int kPlayStep = 100;      // milliseconds for five minutes

constexpr Moment kFirst = std::chrono::sys_days(std::chrono::year(FirstYear) / 1 / 1);
constexpr Moment kLast = std::chrono::sys_days(std::chrono::year(LastYear + 1) / 1 / 1) -
                         std::chrono::minutes(DaySlider::MinutesOfStep);

QDateTime UtcOf(Moment moment) {
  return QDateTime::fromSecsSinceEpoch(moment.time_since_epoch().count(), QTimeZone::utc());
}

Moment Midnight(Moment moment) {
  return std::chrono::floor<std::chrono::days>(moment);
}

SunSite SiteOf(const Position& position) {
  return {position.Latitude, position.Longitude};
}

}  // namespace

TimeBar::TimeBar(std::function<Moment()> clock, QWidget* parent) : QWidget(parent), clock_(std::move(clock)) {
  setObjectName("TimeBar");
  now_ = MakeButton("cmdNow", "&Now", "Follows the clock", [this] {
    if (now_->isChecked()) FollowClock();
  });
  now_->setCheckable(true);
  play_ = MakeButton("cmdPlay", "&Play", "Lets the day pass; again, stops it", [this] {
    play_->isChecked() ? playing_->start(kPlayStep) : playing_->stop();
    if (play_->isChecked()) now_->setChecked(false);
  });
  play_->setCheckable(true);
  for (QPushButton* button : {now_, play_}) button->setAutoDefault(false);

  date_ = new QDateEdit;
  date_->setObjectName("dateUtc");
  date_->setAccessibleName("Date, universal time");
  date_->setToolTip("The day of universal time (UTC)");
  date_->setDisplayFormat("yyyy-MM-dd");
  date_->setCalendarPopup(true);
  date_->setDateRange(UtcOf(kFirst).date(), UtcOf(kLast).date());
  connect(date_, &QDateEdit::dateChanged, this, [this](QDate day) {
    const std::chrono::days change(UtcOf(at_).date().daysTo(day));
    SetMoment(at_ + change);
  });

  slider_ = new DaySlider;
  slider_->setObjectName("sliTime");
  slider_->setAccessibleName("Time of the day, universal time");
  connect(slider_, &QSlider::valueChanged, this, [this](int step) {
    SetMoment(Midnight(at_) + std::chrono::minutes(step * DaySlider::MinutesOfStep));
  });
  connect(slider_, &QSlider::sliderReleased, this, [this] {
    if (Settled) Settled();
  });

  text_ = MakeLabel("lblTime", {});
  minute_ = new QTimer(this);
  connect(minute_, &QTimer::timeout, this, [this] {
    if (std::chrono::floor<std::chrono::minutes>(clock_()) != std::chrono::floor<std::chrono::minutes>(at_))
      Become(clock_());
  });
  playing_ = new QTimer(this);
  connect(playing_, &QTimer::timeout, this, &TimeBar::StepOn);

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(6, 2, 6, 2);
  for (QWidget* widget : std::initializer_list<QWidget*>{now_, play_, date_}) layout->addWidget(widget);
  layout->addWidget(slider_, 1);
  layout->addWidget(text_);
  Become(clock_());
}

void TimeBar::SetMoment(Moment moment) {
  now_->setChecked(false);
  minute_->stop();
  Become(moment);
}

void TimeBar::FollowClock() {
  play_->setChecked(false);
  playing_->stop();
  now_->setChecked(true);
  minute_->start(kLookAtClock);
  Become(clock_());
}

void TimeBar::StepOn() {
  const Moment next = at_ + std::chrono::minutes(DaySlider::MinutesOfStep);
  if (next > kLast) return play_->click();
  Become(next);
}

void TimeBar::Become(Moment moment) {
  at_ = std::clamp(
      std::chrono::time_point_cast<std::chrono::seconds>(std::chrono::floor<std::chrono::minutes>(moment)),
      kFirst, kLast);
  Show();
  if (Changed) Changed();
}

void TimeBar::Show() {
  const QDateTime utc = UtcOf(at_);
  const QDateTime local = utc.toLocalTime();
  const bool sameDay = local.date() == utc.date();
  text_->setText(utc.toString("HH:mm") + " UTC, " + local.toString(sameDay ? "HH:mm" : "ddd HH:mm") +
                 " here");
  slider_->setAccessibleDescription(text_->text());
  const QSignalBlocker blockDate(date_), blockSlider(slider_);
  slider_->setValue(static_cast<int>((at_ - Midnight(at_)) / std::chrono::minutes(DaySlider::MinutesOfStep)));
  if (date_->date() == utc.date()) return;
  date_->setDate(utc.date());
  ShowSun();
}

void TimeBar::ShowHome(const Position& home) {
  home_ = home;
  ShowSun();
}

void TimeBar::ShowStation(const std::optional<Position>& station) {
  station_ = station;
  ShowSun();
}

void TimeBar::ShowSun() {
  slider_->ShowSun(Midnight(at_), SiteOf(home_), station_ ? std::optional(SiteOf(*station_)) : std::nullopt);
}

void TimeBar::hideEvent(QHideEvent* event) {
  play_->setChecked(false);
  playing_->stop();
  QWidget::hideEvent(event);
}

}  // namespace kestrel
