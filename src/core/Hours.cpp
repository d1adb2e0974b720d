#include "core/Hours.h"

namespace kestrel {

Hours HoursOf(std::string_view code) {
  if (code == "D") return Hours::Daytime;
  if (code == "N") return Hours::Nighttime;
  if (code == "C") return Hours::Critical;
  if (code == "U") return Hours::Unlimited;
  return Hours::Other;
}

char HoursLetter(Hours hours) {
  return "DNCU?"[static_cast<int>(hours)];
}

std::string HoursWord(std::string_view code) {
  switch (HoursOf(code)) {
    case Hours::Daytime:
      return "daytime";
    case Hours::Nighttime:
      return "nighttime";
    case Hours::Critical:
      return "critical hours";
    case Hours::Unlimited:
      return "unlimited";
    case Hours::Other:
      break;
  }
  return std::string(code);
}

bool Passes(Hours hours, HoursFilter filter) {
  if (hours == Hours::Unlimited || filter == HoursFilter::All) return true;
  if (filter == HoursFilter::Day) return hours == Hours::Daytime || hours == Hours::Critical;
  if (filter == HoursFilter::Night) return hours == Hours::Nighttime || hours == Hours::Critical;
  return false;
}

HoursFilter Next(HoursFilter filter) {
  if (filter == HoursFilter::All) return HoursFilter::Day;
  return filter == HoursFilter::Day ? HoursFilter::Night : HoursFilter::All;
}

std::string_view FilterWord(HoursFilter filter) {
  if (filter == HoursFilter::Day) return "day & crit";
  return filter == HoursFilter::Night ? "night & crit" : "all";
}

}  // namespace kestrel
