#include "core/Numbers.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/PlainNumber.h"
#include "core/Text.h"

namespace kestrel {
namespace {

/// A decimal number as it stands in the text.
struct Decimal {
  bool negative = false;
  std::string_view text;  // its mantissa and exponent; empty when all digits are 0
  long long power = 0;    // the smallest power of ten above it
};

/// Reads the exponent after a mantissa; returns the offset after it, `at` when there is none.
std::size_t ReadExponent(std::string_view text, std::size_t at, long long& exponent) {
  if (at >= text.size() || (text[at] != 'E' && text[at] != 'e')) return at;
  std::size_t i = at + 1;
  const bool negative = i < text.size() && text[i] == '-';
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  if (i >= text.size() || !IsDigit(text[i])) return at;
  long long value = 0;
  for (; i < text.size() && IsDigit(text[i]); ++i)
    value = std::min(value * 10 + (text[i] - '0'), 1'000'000'000LL);
  exponent += negative ? -value : value;
  return i;
}

Decimal ReadDecimal(std::string_view text) {
  Decimal decimal;
  std::size_t i = std::min(text.find_first_not_of(' '), text.size());
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) decimal.negative = text[i++] == '-';
  const std::size_t begin = i;
  bool pointSeen = false;
  bool digitSeen = false;
  bool significant = false;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '.' && !pointSeen) {
      pointSeen = true;
      continue;
    }
    if (!IsDigit(c)) break;
    digitSeen = true;
    significant = significant || c != '0';
    if (significant && !pointSeen) ++decimal.power;
    if (!significant && pointSeen) --decimal.power;
  }
  if (!digitSeen) return {};
  i = ReadExponent(text, i, decimal.power);
  if (significant) decimal.text = text.substr(begin, i - begin);
  return decimal;
}

/// Multiplier of an engineering suffix; 0 for a character that is none.
double SuffixMultiplier(char c) {
  switch (c) {
    case 'P':
    case 'p':
      return 1e-12;
    case 'N':
    case 'n':
      return 1e-9;
    case 'U':
    case 'u':
      return 1e-6;
    case 'm':
      return 0.001;
    case 'K':
    case 'k':
      return 1000;
    case 'M':
      return 1e6;
    case 'G':
    case 'g':
      return 1e9;
    default:
      return 0;
  }
}

/// Halves away from zero, then read back as a single: trailing zeros vanish.
std::string RoundedText(double value, int decimals) {
  const double scale = PowersOfTen[static_cast<std::size_t>(decimals)];
  return NumberText(static_cast<float>(std::round(value * scale) / scale));
}

}  // namespace

double LeadingNumber(std::string_view text) {
  const char* begin = text.data();
  const char* const end = begin + text.size();
  while (begin != end && *begin == ' ') ++begin;
  double plain = 0;
  const char* const after = ReadPlainNumber(begin, end, plain);
  if (after && (after == end || (*after != 'E' && *after != 'e'))) return plain;

  const Decimal decimal = ReadDecimal(text);
  const char* const last = decimal.text.data() + decimal.text.size();
  double magnitude = 0;
  if (std::from_chars(decimal.text.data(), last, magnitude).ec == std::errc::result_out_of_range)
    magnitude = decimal.power > 0 ? std::numeric_limits<double>::max() : 0;
  magnitude = std::min<double>(magnitude, std::numeric_limits<float>::max());
  return decimal.negative ? -magnitude : magnitude;
}

float ParseNumber(std::string_view text) {
  constexpr std::size_t kMostDigits = 16;
  std::string digits;
  double multiplier = 1;
  bool pointSeen = false;
  bool exponentSeen = false;
  bool suffixSeen = false;
  for (char c : Trim(text)) {
    if (suffixSeen) break;
    if (c == ',') c = '.';
    if (IsDigit(c)) {
      if (digits.size() < kMostDigits) digits += c;
    } else if (c == '.') {
      if (!pointSeen) digits += c;
      pointSeen = true;
    } else if (c == '+' || c == '-') {
      if (digits.empty() || digits.back() == 'E') digits += c;
    } else if (digits.empty()) {
      continue;
    } else if (c == 'E' || c == 'e') {
      if (!exponentSeen) digits += 'E';
      exponentSeen = pointSeen = true;
    } else if (const double suffix = SuffixMultiplier(c); suffix != 0 && !exponentSeen) {
      multiplier = suffix;
      suffixSeen = true;
    }
  }
  const auto value = static_cast<float>(LeadingNumber(digits));
  return static_cast<float>(std::clamp(value * multiplier, -1e10, 1e10));
}

std::string FormatNumber(float value) {
  const double v = value;
  const double magnitude = std::abs(v);
  if (magnitude >= 1e9) return RoundedText(v / 1e9, 3) + 'G';
  if (magnitude >= 1e6) return RoundedText(v / 1e6, 3) + 'M';
  if (magnitude >= 1000) return RoundedText(v, 0);
  if (magnitude >= 100) return RoundedText(v, 2);
  if (magnitude >= 10) return RoundedText(v, 3);
  if (magnitude >= 1) return RoundedText(v, 4);
  if (magnitude > 1e-5) return RoundedText(v, 5);
  return "0";
}

std::string NumberText(float value) {
  std::array<char, 64> buffer;
  // Scientific notation gives the shortest digits, "d.ddde+xx"; they are then set out in ordinary form.
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                          std::chars_format::scientific);
  const std::string_view scientific(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t mark = scientific.find('e');
  std::string digits(1, scientific[0]);
  if (mark > 2) digits += scientific.substr(2, mark - 2);
  if (digits == "0") return digits;

  int exponent = 0;
  const bool signWritten = scientific[mark + 1] == '+';
  std::from_chars(scientific.data() + mark + (signWritten ? 2 : 1), scientific.data() + scientific.size(),
                  exponent);
  const int whole = exponent + 1;  // digits before the point
  if (whole <= 0) {
    digits.insert(0, "." + std::string(static_cast<std::size_t>(-whole), '0'));
  } else if (static_cast<std::size_t>(whole) >= digits.size()) {
    digits.append(static_cast<std::size_t>(whole) - digits.size(), '0');
  } else {
    digits.insert(static_cast<std::size_t>(whole), ".");
  }
  return value < 0 ? '-' + digits : digits;
}

std::string SignedNumberText(float value) {
  std::string text = NumberText(value);
  return text.front() == '-' ? text : ' ' + text;
}

std::string DisplayNumberText(float value) {
  return SignedNumberText(value) + ' ';
}

std::string FixedText(double value, int decimals) {
  std::array<char, 400> text;
  const auto [end, error] =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
  assert(error == std::errc());
  const std::string_view written(text.data(), end);
  const bool isZero = written.find_first_of("123456789") == std::string_view::npos;
  return std::string(written.substr(isZero && written.front() == '-' ? 1 : 0));
}

float TruncateToTenth(double value) {
  return static_cast<float>(std::floor(value * 10) * 0.1);
}

double RoundToWhole(double value) {
  return std::nearbyint(value);
}

}  // namespace kestrel
