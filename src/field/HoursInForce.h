#pragma once

#include <optional>
#include <string_view>

#include "core/Hours.h"
#include "core/Sun.h"

// Which of a station's records is on the air at a moment, by the time of the day at each record's own site.

namespace kestrel {

/// How day and night are told at a transmitter.
enum class HoursRule {
  Auto,     ///< Licence in the United States, Sun elsewhere
  Sun,      ///< sunrise to sunset of the day itself
  Licence,  ///< those of the month's 15th, to the nearest quarter hour, all month (47 CFR 73.1720)
};

/// "auto", "sun", "licence".
std::string_view NameOf(HoursRule rule);

/// Nothing for any other name.
std::optional<HoursRule> HoursRuleNamed(std::string_view name);

/// Critical hours are the two after sunrise and the two before sunset (47 CFR 73.187).
enum class TimeOfDay { Day, CriticalHours, Night };

/// Tells the time of the day at one site, at any moments one after the other.
class SiteClock {
 public:
  SiteClock(const SunSite& site, bool inUnitedStates);

  /// `sun` is the sun at `moment`. The month's licence times are computed once and kept until another month
  /// is asked for.
  TimeOfDay At(Moment moment, const Sun& sun, HoursRule rule);

 private:
  /// Minutes of the UTC day, rounded to quarters of an hour. Without a sunrise and a sunset it is `Always`
  /// all month.
  struct LicenceTimes {
    int Month = -1;  // since the year 0
    std::optional<TimeOfDay> Always;
    double Sunrise = 0, Sunset = 0;
  };

  TimeOfDay BySun(const Sun& sun) const;
  TimeOfDay ByLicence(Moment moment);
  LicenceTimes TimesOf(std::chrono::year_month month) const;

  SunSite site_;
  bool inUnitedStates_;
  LicenceTimes licence_;
};

/// The codes that a station has records of.
struct StationHours {
  bool Day = false, Night = false, Critical = false, Unlimited = false;

  void Add(Hours hours);
};

/// The code in force: in critical hours the first of C, D, U that the station has, by day the first of D, U,
/// by night the first of N, U. Nothing: it is off the air.
std::optional<Hours> HoursInForce(const StationHours& station, TimeOfDay time);

/// Why a station without a record in force is off the air, in words: "day only", "night only", "critical
/// hours are over", and, for what its codes do not explain, that they are not known or that it changes
/// between two sites.
std::string_view SilenceReason(const StationHours& station, TimeOfDay time);

}  // namespace kestrel
