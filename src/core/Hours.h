#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The hours of operation for which an antenna is licensed, and the choice among them.

namespace kestrel {

/// In the order in which a station's records stand in its file.
enum class Hours : std::uint8_t {
  Daytime,    ///< "D": sunrise to sunset
  Nighttime,  ///< "N": sunset to sunrise
  Critical,   ///< "C": the two hours after sunrise and before sunset
  Unlimited,  ///< "U": at all hours
  Other,      ///< none of the four codes
};

/// The hours that a code of the station files stands for; compared exactly, so that "d" is `Other`.
Hours HoursOf(std::string_view code);

/// 'D', 'N', 'C' or 'U'; '?' for `Other`, which no code stands for.
char HoursLetter(Hours hours);

/// "daytime", "nighttime", "critical hours", "unlimited"; another code as it stands.
std::string HoursWord(std::string_view code);

/// Which records the map shows. Unlimited ones are always among them, and are all that any other value shows.
enum class HoursFilter : std::int16_t { All = 0, Day = 1, Night = 2 };

/// Whether the filter lets records of these hours through. Day and Night both show critical hours.
bool Passes(Hours hours, HoursFilter filter);

/// All, Day, Night, and All again.
HoursFilter Next(HoursFilter filter);

/// "all", "day & crit", "night & crit": the pattern set in the legend. Any other value reads "all".
std::string_view FilterWord(HoursFilter filter);

}  // namespace kestrel
