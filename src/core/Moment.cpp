#include "core/Moment.h"

#include <cmath>
#include <optional>

#include "core/Text.h"

namespace kestrel {
namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;
using std::chrono::year_month_day;

constexpr Moment kNoonOf2000 = std::chrono::sys_days(std::chrono::year(2000) / 1 / 1) + hours(12);
constexpr double kSecondsOfDay = 86400;

/// Takes numbers and signs off the front of a text, one after the other.
class Cutter {
 public:
  explicit Cutter(std::string_view text) : rest_(text) {}

  /// As many digits.
  int Digits(std::size_t count) {
    if (rest_.size() < count) return Fail();
    int value = 0;
    for (const char c : rest_.substr(0, count)) {
      if (c < '0' || c > '9') return Fail();
      value = value * 10 + (c - '0');
    }
    rest_.remove_prefix(count);
    return value;
  }

  void Sign(char sign) {
    if (!Begins(sign)) {
      Fail();
      return;
    }
    rest_.remove_prefix(1);
  }

  bool Begins(char sign) const { return EqualIgnoringCase(rest_.substr(0, 1), std::string_view(&sign, 1)); }

  /// Whether all was as asked for and nothing is left.
  bool Done() const { return good_ && rest_.empty(); }

 private:
  int Fail() {
    good_ = false;
    return 0;
  }

  std::string_view rest_;
  bool good_ = true;
};

Error Refusal(std::string_view text, const std::string& reason) {
  return {Error::Kind::Malformed, "", 0, std::string(text) + ": " + reason};
}

void AppendTwo(std::string& text, char sign, std::int64_t value) {
  text += sign;
  text += static_cast<char>('0' + value / 10);
  text += static_cast<char>('0' + value % 10);
}

}  // namespace

Moment Now() {
  return std::chrono::floor<seconds>(std::chrono::system_clock::now());
}

Result<Moment> ReadMoment(std::string_view text, Moment now) {
  text = Trim(text);
  if (EqualIgnoringCase(text, "now")) return now;
  Cutter cutter(text);
  const int year = cutter.Digits(4);
  cutter.Sign('-');
  const int month = cutter.Digits(2);
  cutter.Sign('-');
  const int day = cutter.Digits(2);
  cutter.Sign('T');
  const int hour = cutter.Digits(2);
  cutter.Sign(':');
  const int minute = cutter.Digits(2);
  int second = 0;
  if (cutter.Begins(':')) {
    cutter.Sign(':');
    second = cutter.Digits(2);
  }
  cutter.Sign('Z');
  if (!cutter.Done()) return Refusal(text, "give now, or a time of UTC as in 2026-11-22T03:12Z");
  const auto date = std::chrono::year(year) / month / day;
  if (!date.ok()) return Refusal(text, "there is no such day");
  if (hour > 23 || minute > 59 || second > 59)
    return Refusal(text, "hours end at 23, minutes and seconds at 59");
  if (year < FirstYear || year > LastYear)
    return Refusal(text, "give a year from " + std::to_string(FirstYear) + " to " + std::to_string(LastYear));
  return std::chrono::sys_days(date) + hours(hour) + minutes(minute) + seconds(second);
}

std::string MomentText(Moment moment) {
  const auto day = std::chrono::floor<days>(moment);
  const year_month_day date(day);
  const std::int64_t second = (moment - day).count();
  std::string text = std::to_string(static_cast<int>(date.year()));
  AppendTwo(text, '-', static_cast<unsigned>(date.month()));
  AppendTwo(text, '-', static_cast<unsigned>(date.day()));
  AppendTwo(text, 'T', second / 3600);
  AppendTwo(text, ':', second / 60 % 60);
  if (second % 60 != 0) AppendTwo(text, ':', second % 60);
  return text + 'Z';
}

double DaysSince2000(Moment moment) {
  return static_cast<double>((moment - kNoonOf2000).count()) / kSecondsOfDay;
}

Moment MomentOfDays(double daysSince2000) {
  return kNoonOf2000 + seconds(std::llround(daysSince2000 * kSecondsOfDay));
}

}  // namespace kestrel
