#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "core/Result.h"

namespace kestrel {

/// An instant of universal time (UTC), to the second. What is computed from one holds from the beginning of
/// 1950 to the end of 2100.
using Moment = std::chrono::sys_seconds;

inline constexpr int FirstYear = 1950;
inline constexpr int LastYear = 2100;

/// The clock's.
Moment Now();

/// Reads "2026-11-22T03:12Z" or "2026-11-22T03:12:45Z" (ISO 8601, always UTC; T and Z in either case), and
/// "now", which is `now`. Blanks at the ends are passed over. Errors: another text, a day or an hour that
/// there is not, a year outside FirstYear to LastYear.
Result<Moment> ReadMoment(std::string_view text, Moment now);

/// "2026-11-22T03:12Z", with seconds where there are any. REQUIRES: a year of four digits.
std::string MomentText(Moment moment);

/// Days since noon of 1 January 2000 (Julian date 2451545.0), fractions included.
double DaysSince2000(Moment moment);

/// The way back, to the nearest second.
Moment MomentOfDays(double daysSince2000);

}  // namespace kestrel
