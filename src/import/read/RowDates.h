#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace kestrel {

using Date = std::chrono::year_month_day;

/// The day in the number of an application: "BL-20101008ACZ" is 8 October 2010. Older and newer numbers,
/// "BL-9847" and "0000250111", have none.
std::optional<Date> FileNumberDate(std::string_view number);

/// The day in a date column, "10/08/2010" or "2010-10-08", whatever stands after it.
std::optional<Date> ColumnDate(std::string_view text);

/// The last of the days seen, those after `today` aside: they are slips of the pen.
class NewestDate {
 public:
  explicit NewestDate(Date today) : today_(today) {}

  void See(const std::optional<Date>& date) {
    if (date && *date <= today_ && (!newest_ || *newest_ < *date)) newest_ = date;
  }
  const std::optional<Date>& Newest() const { return newest_; }

 private:
  Date today_;
  std::optional<Date> newest_;
};

}  // namespace kestrel
