#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Reading and writing numbers, the same in every locale: "." is the decimal point of all files and texts.
// NaN and infinity are neither read nor written.

namespace kestrel {

/// The number at the front of `text`: blanks are skipped, then an optional sign, digits with at most one
/// point, and an exponent when digits follow its "E" or "e". It ends at the first other character, a
/// blank included; "inf", "nan" and hexadecimal are no numbers.
///
///     "12.5kW" -> 12.5    " -.5" -> -0.5    "1e3" -> 1000    "1e" -> 1    "1 2" -> 1    "x" -> 0
///
/// Correctly rounded to double; limited to plus or minus the largest single, as for 1e400. "-0" keeps its
/// sign. No number: 0.
double LeadingNumber(std::string_view text);

/// A number as people type it: a comma is a decimal point, and a letter after it scales it
/// (p 1e-12, n 1e-9, u 1e-6, m 0.001, k 1000, M 1e6, G 1e9; only for M the case matters).
/// Other characters are passed over, so units and inner signs do no harm; at most 16 digits and signs count.
///
///     "1.23K" -> 1230    "4.7u" -> 4.7e-6    "1,5" -> 1.5    "1e3k" -> 1000    "12-3" -> 123    "abc" -> 0
///
/// Limited to -1e10 to 1e10.
float ParseNumber(std::string_view text);

/// The value in at most about six significant places with a suffix from a million on; the magnitudes from
/// 1000 to just under a million are whole numbers without one, and those up to 1e-5 are "0".
///
///     0.5 -> ".5"    12.5 -> "12.5"    999.999 -> "1000"    1500 -> "1500"    1234567 -> "1.235M"
std::string FormatNumber(float value);

/// The plain form: the shortest text that reads back to the same single, always in ordinary digits, without
/// a zero before the point: "620", ".5", "-33.24278". Zero of either sign is "0".
/// REQUIRES: the value is finite.
std::string NumberText(float value);

/// The plain form with a blank in place of a positive number's sign: " 1230", "-.5".
std::string SignedNumberText(float value);

/// The display form: the signed form and one blank after it: " .75 ".
std::string DisplayNumberText(float value);

/// So many decimals, rounded, a digit before the point: "-0.5000". Zero has no sign.
/// REQUIRES: the value is finite and 0 <= decimals <= 20.
std::string FixedText(double value, int decimals);

/// One decimal, truncated toward minus infinity: 123.96 gives 123.9, -0.05 gives -0.1.
float TruncateToTenth(double value);

/// Rounded to the nearest whole number, halves to the even one.
double RoundToWhole(double value);

}  // namespace kestrel
