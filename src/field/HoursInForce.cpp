#include "field/HoursInForce.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kestrel {
namespace {

constexpr std::array<std::pair<HoursRule, std::string_view>, 3> kRuleNames = {
    {{HoursRule::Auto, "auto"}, {HoursRule::Sun, "sun"}, {HoursRule::Licence, "licence"}}};
constexpr double kMinutesOfDay = 1440;
constexpr double kCriticalMinutes = 120;
constexpr double kCriticalDegrees = 30;  // of hour angle, two hours

/// In 0 to 1440.
double WithinDay(double minutes) {
  const double within = std::fmod(minutes, kMinutesOfDay);
  return within < 0 ? within + kMinutesOfDay : within;
}

/// UTC minutes of the day. Days since 2000 are whole at noon.
double MinuteOf(double daysSince2000) {
  return WithinDay((daysSince2000 + 0.5) * kMinutesOfDay);
}

double ToQuarterHour(double minute) {
  return WithinDay(std::round(minute / 15) * 15);
}

/// Days since 2000 of a sunrise (side -1) or sunset (+1) near a noon, by stepping to where the solar clock
/// would show it; the declination hardly changes meanwhile. Nothing close to polar days and nights, where it
/// does not settle.
std::optional<double> PassageNear(const SunSite& site, double noon, int side) {
  double time = noon;
  for (int round = 0; round < 4; ++round) {
    const SolarClock clock = Sun(time).ClockAt(site);
    if (clock.HalfDay < 15 || clock.HalfDay > 165) return std::nullopt;
    const double late = clock.HourAngle - side * clock.HalfDay;
    time -= (round == 0 ? late : std::remainder(late, 360)) / 360;
  }
  return time;
}

}  // namespace

std::string_view NameOf(HoursRule rule) {
  return kRuleNames[static_cast<std::size_t>(rule)].second;
}

std::optional<HoursRule> HoursRuleNamed(std::string_view name) {
  for (const auto& [rule, known] : kRuleNames)
    if (known == name) return rule;
  return std::nullopt;
}

SiteClock::SiteClock(const SunSite& site, bool inUnitedStates)
    : site_(site), inUnitedStates_(inUnitedStates) {}

TimeOfDay SiteClock::At(Moment moment, const Sun& sun, HoursRule rule) {
  const bool byLicence = rule == HoursRule::Licence || (rule == HoursRule::Auto && inUnitedStates_);
  return byLicence ? ByLicence(moment) : BySun(sun);
}

TimeOfDay SiteClock::BySun(const Sun& sun) const {
  const SolarClock clock = sun.ClockAt(site_);
  if (!clock.SunIsUp()) return TimeOfDay::Night;
  if (clock.Day == SolarClock::Course::PolarDay) return TimeOfDay::Day;
  return std::abs(clock.HourAngle) > clock.HalfDay - kCriticalDegrees ? TimeOfDay::CriticalHours
                                                                      : TimeOfDay::Day;
}

TimeOfDay SiteClock::ByLicence(Moment moment) {
  const double noon = LocalMeanNoon(site_, DaysSince2000(moment));
  // Half past noon of Greenwich on the site's own date, wherever the site is.
  const std::chrono::year_month_day date(
      std::chrono::floor<std::chrono::days>(MomentOfDays(noon - site_.Longitude / 360)));
  const std::chrono::year_month month = date.year() / date.month();
  const int number =
      static_cast<int>(date.year()) * 12 + static_cast<int>(static_cast<unsigned>(date.month()));
  if (licence_.Month != number) {
    licence_ = TimesOf(month);
    licence_.Month = number;
  }
  if (licence_.Always) return *licence_.Always;
  const double since = WithinDay(MinuteOf(DaysSince2000(moment)) - licence_.Sunrise);
  const double length = WithinDay(licence_.Sunset - licence_.Sunrise);
  if (since >= length) return TimeOfDay::Night;
  return since < kCriticalMinutes || length - since <= kCriticalMinutes ? TimeOfDay::CriticalHours
                                                                        : TimeOfDay::Day;
}

SiteClock::LicenceTimes SiteClock::TimesOf(std::chrono::year_month month) const {
  const Moment middle = std::chrono::sys_days(month / 15) + std::chrono::hours(12);
  const double noon = DaysSince2000(middle) + site_.Longitude / 360;
  std::optional<double> sunrise = PassageNear(site_, noon, -1);
  std::optional<double> sunset = PassageNear(site_, noon, 1);
  LicenceTimes times;
  if (!sunrise || !sunset) {
    const SunDay day = SunDayAt(site_, MomentOfDays(noon));
    if (!day.Sunrise || !day.Sunset) {
      const bool light = Sun(day.Noon).Elevation(site_) >= SunriseElevation;
      times.Always = light ? TimeOfDay::Day : TimeOfDay::Night;
      return times;
    }
    sunrise = DaysSince2000(*day.Sunrise);
    sunset = DaysSince2000(*day.Sunset);
  }
  times.Sunrise = ToQuarterHour(MinuteOf(*sunrise));
  times.Sunset = ToQuarterHour(MinuteOf(*sunset));
  return times;
}

void StationHours::Add(Hours hours) {
  switch (hours) {
    case Hours::Daytime:
      Day = true;
      break;
    case Hours::Nighttime:
      Night = true;
      break;
    case Hours::Critical:
      Critical = true;
      break;
    case Hours::Unlimited:
      Unlimited = true;
      break;
    case Hours::Other:
      break;
  }
}

std::optional<Hours> HoursInForce(const StationHours& station, TimeOfDay time) {
  if (time == TimeOfDay::CriticalHours && station.Critical) return Hours::Critical;
  if (time == TimeOfDay::Night ? station.Night : station.Day)
    return time == TimeOfDay::Night ? Hours::Nighttime : Hours::Daytime;
  if (station.Unlimited) return Hours::Unlimited;
  return std::nullopt;
}

std::string_view SilenceReason(const StationHours& station, TimeOfDay time) {
  if (!(station.Day || station.Night || station.Critical || station.Unlimited)) return "hours not known";
  if (HoursInForce(station, time)) return "changing between its sites";
  if (time == TimeOfDay::Night) return "day only";
  return station.Critical ? "critical hours are over" : "night only";
}

}  // namespace kestrel
