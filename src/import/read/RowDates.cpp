#include "import/read/RowDates.h"

#include <charconv>

namespace kestrel {
namespace {

/// The number that `count` digits from `at` on are; -1 when they are not all digits.
int Digits(std::string_view text, std::size_t at, std::size_t count) {
  if (text.size() < at + count) return -1;
  int value = -1;
  const char* const end = text.data() + at + count;
  return std::from_chars(text.data() + at, end, value).ptr == end ? value : -1;
}

std::optional<Date> DateOf(int year, int month, int day) {
  constexpr int kFirstYear = 1920;  // of broadcasting
  if (year < kFirstYear || month < 1 || day < 1) return std::nullopt;
  const Date date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                  std::chrono::day(static_cast<unsigned>(day)));
  return date.ok() ? std::optional(date) : std::nullopt;
}

}  // namespace

std::optional<Date> FileNumberDate(std::string_view number) {
  const std::size_t at = number.find('-') + 1;
  if (at == 0 || Digits(number, at + 8, 1) >= 0) return std::nullopt;
  return DateOf(Digits(number, at, 4), Digits(number, at + 4, 2), Digits(number, at + 6, 2));
}

std::optional<Date> ColumnDate(std::string_view text) {
  if (text.size() < 10) return std::nullopt;
  if (text[2] == '/' && text[5] == '/')
    return DateOf(Digits(text, 6, 4), Digits(text, 0, 2), Digits(text, 3, 2));
  if (text[4] == '-' && text[7] == '-')
    return DateOf(Digits(text, 0, 4), Digits(text, 5, 2), Digits(text, 8, 2));
  return std::nullopt;
}

}  // namespace kestrel
