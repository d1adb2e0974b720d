#include "core/CoordinateText.h"

#include <algorithm>
#include <array>

#include "core/Numbers.h"
#include "core/PlainNumber.h"
#include "core/Text.h"

namespace kestrel {
namespace {

enum class Mark { None, Degree, Minute, Second };

struct Part {
  double value = 0;
  bool whole = true;
  Mark mark = Mark::None;
};

/// The text cut into parts, sign and letter.
struct Pieces {
  std::array<Part, 3> parts;
  std::size_t count = 0;
  char hemisphere = 0;  // a capital
  char sign = 0;
};

struct Spelling {
  std::string_view text;
  Mark mark;
};

constexpr std::array kMarks = {
    Spelling{"\u00B0", Mark::Degree}, Spelling{"\u00BA", Mark::Degree}, Spelling{"deg", Mark::Degree},
    Spelling{"d", Mark::Degree},      Spelling{"D", Mark::Degree},      Spelling{"''", Mark::Second},
    Spelling{"'", Mark::Minute},      Spelling{"\u2032", Mark::Minute}, Spelling{"\u2019", Mark::Minute},
    Spelling{"\"", Mark::Second},     Spelling{"\u2033", Mark::Second}, Spelling{"\u201D", Mark::Second},
};

/// Cuts a text; nothing where it holds anything that no coordinate has.
class Cutter {
 public:
  explicit Cutter(std::string_view text) : rest_(text) {}

  std::optional<Pieces> Cut() {
    for (SkipBlanks(); !rest_.empty(); SkipBlanks())
      if (!TakeSign() && !TakeNumber() && !TakeMark() && !TakeHemisphere()) return std::nullopt;
    return pieces_;
  }

 private:
  void SkipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size())); }

  bool TakeSign() {
    if ((rest_.front() != '+' && rest_.front() != '-') || pieces_.count > 0 || pieces_.sign != 0)
      return false;
    pieces_.sign = rest_.front();
    rest_.remove_prefix(1);
    return true;
  }

  bool TakeNumber() {
    if (pieces_.count == pieces_.parts.size() ||
        (pieces_.count > 0 && pieces_.hemisphere != 0 && !letterFirst_))
      return false;
    std::size_t end = 0;
    std::string digits;
    for (; end < rest_.size() && (IsDigit(rest_[end]) || rest_[end] == '.' || rest_[end] == ','); ++end)
      digits += rest_[end] == ',' ? '.' : rest_[end];
    const std::size_t points = static_cast<std::size_t>(std::count(digits.begin(), digits.end(), '.'));
    if (end == points || points > 1) return false;
    pieces_.parts[pieces_.count++] = {LeadingNumber(digits), points == 0, Mark::None};
    rest_.remove_prefix(end);
    return true;
  }

  bool TakeMark() {
    if (pieces_.count == 0 || pieces_.parts[pieces_.count - 1].mark != Mark::None) return false;
    Part& part = pieces_.parts[pieces_.count - 1];
    for (const auto& [text, mark] : kMarks)
      if (rest_.starts_with(text)) return SetMark(part, mark, text.size());
    const char letter = static_cast<char>(rest_.front() | 0x20);
    if (letter == 'm' && pieces_.count == 2) return SetMark(part, Mark::Minute, 1);
    if (letter == 's' && pieces_.count == 3 && pieces_.parts[1].mark == Mark::Minute)
      return SetMark(part, Mark::Second, 1);
    return false;
  }

  bool SetMark(Part& part, Mark mark, std::size_t length) {
    part.mark = mark;
    rest_.remove_prefix(length);
    return true;
  }

  bool TakeHemisphere() {
    static constexpr std::string_view kLetters = "NSEWnsew";
    if (kLetters.find(rest_.front()) == std::string_view::npos || pieces_.hemisphere != 0) return false;
    letterFirst_ = pieces_.count == 0;
    pieces_.hemisphere = static_cast<char>(rest_.front() & ~0x20);
    rest_.remove_prefix(1);
    return true;
  }

  std::string_view rest_;
  Pieces pieces_;
  bool letterFirst_ = false;
};

/// Whether there is more than a plain number, which is read by other rules.
bool IsNotation(const Pieces& pieces) {
  return pieces.count > 1 ||
         (pieces.count == 1 && (pieces.hemisphere != 0 || pieces.parts[0].mark != Mark::None));
}

std::string FaultOf(const Pieces& pieces, Axis axis) {
  const bool latitude = axis == Axis::Latitude;
  if (pieces.hemisphere != 0 &&
      std::string_view(latitude ? "NS" : "EW").find(pieces.hemisphere) == std::string_view::npos)
    return latitude ? "Latitudes are N or S" : "Longitudes are W or E";
  if (pieces.hemisphere != 0 && pieces.sign != 0) return "A sign or a letter, not both";
  static constexpr std::array kOrder = {Mark::Degree, Mark::Minute, Mark::Second};
  for (std::size_t i = 0; i < pieces.count; ++i) {
    const Part& part = pieces.parts[i];
    if (part.mark != Mark::None && part.mark != kOrder[i]) return "Order: degrees, minutes, seconds";
    if (!part.whole && i + 1 < pieces.count) return "Decimals in the last part only";
    if (i > 0 && !(part.value < 60)) return i == 1 ? "Minutes run from 0 to 59" : "Seconds run from 0 to 59";
  }
  return {};
}

}  // namespace

std::optional<CoordinateReading> ReadCoordinate(std::string_view text, Axis axis) {
  const std::optional<Pieces> pieces = Cutter(text).Cut();
  if (!pieces || !IsNotation(*pieces)) return std::nullopt;
  if (std::string fault = FaultOf(*pieces, axis); !fault.empty())
    return CoordinateReading{0, 0, std::move(fault)};
  const double degrees = pieces->parts[0].value + pieces->parts[1].value / 60 + pieces->parts[2].value / 3600;
  if (!(degrees <= (axis == Axis::Latitude ? 90 : 180)))
    return CoordinateReading{0, 0, axis == Axis::Latitude ? "Latitude beyond 90" : "Longitude beyond 180"};
  const bool negative = pieces->sign == '-' || pieces->hemisphere == 'S' || pieces->hemisphere == 'E';
  return CoordinateReading{static_cast<float>(negative ? -degrees : degrees), pieces->hemisphere, {}};
}

}  // namespace kestrel
