#include "data/StationLineText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/Text.h"

namespace kestrel {
namespace {

constexpr std::size_t kCallSignWidth = 8;
constexpr std::size_t kCityWidth = 25;
constexpr std::size_t kStateWidth = 5;
constexpr std::size_t kCountryWidth = 14;
constexpr std::size_t kPositionWidth = 8;
constexpr std::size_t kPowerWidth = 6;

bool IsSeparator(char c) {
  return c == ',' || (c >= 0 && c < ' ') || c == '\x7F';
}

/// A leading blank and the text, at most `width` characters in all.
std::string TextField(std::string_view text, std::size_t width, FieldChanges& changes) {
  std::string field(Trim(text));
  if (std::any_of(field.begin(), field.end(), IsSeparator)) {
    std::replace_if(field.begin(), field.end(), IsSeparator, ' ');
    field = Trim(field);
    ++changes.blanked;
  }
  if (field.empty()) {
    field = "-";
    ++changes.empty;
  }
  field.insert(0, 1, ' ');
  if (CharacterCount(field) <= width) return field;
  ++changes.cut;
  return std::string(Columns(field, 1, width));
}

/// Never "0": the smallest value of so many decimals in its place, with its sign.
std::string NonZeroText(double value, int decimals, std::size_t width) {
  std::string text = DecimalText(value, decimals, width);
  return text == "0" ? DecimalText(std::copysign(std::pow(10, -decimals), value), decimals) : text;
}

std::string TowerLine(const StationRecord& record, std::size_t tower) {
  const std::string_view reference = Trim(record.Switch[tower]);
  std::string line =
      record.Switch[tower] == "0" ? "0" : ' ' + std::string(reference.empty() ? "1" : reference);
  line += ',' + NonZeroText(record.Fields[tower], 6, 32);
  for (const float value :
       {record.Heights[tower], record.Phases[tower], record.Spacings[tower], record.Bearings[tower]})
    line += ',' + DecimalText(value, 4);
  return line + "\r\n";
}

}  // namespace

std::string DecimalText(double value, int decimals, std::size_t width) {
  std::array<char, 400> buffer{};
  std::string text;
  for (; decimals >= 0; --decimals) {
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals)
            .ptr;
    text.assign(buffer.data(), end);
    if (text.find('.') != std::string::npos) {
      text.erase(text.find_last_not_of('0') + 1);
      if (text.back() == '.') text.pop_back();
    }
    if (text.size() <= width) break;
  }
  return text == "-0" ? "0" : text;
}

std::string DegreesText(float degrees) {
  return NonZeroText(degrees, 4, kPositionWidth);
}

std::string StationRecordText(int channel, const StationRecord& record, FieldChanges& changes) {
  std::string text = std::to_string(channel);
  text += ',' + TextField(record.CallSign, kCallSignWidth, changes);
  text += ',' + PadTo(TextField(record.City, kCityWidth, changes), kCityWidth);
  text += ',' + PadTo(TextField(record.State, kStateWidth, changes), kStateWidth);
  text += ',' + PadTo(TextField(record.Country, kCountryWidth, changes), kCountryWidth);
  text += ", " + record.HoursCode;
  text += ", " + DegreesText(record.Latitude);
  text += ", " + DegreesText(record.Longitude);
  text += ", " + NonZeroText(record.PowerKW, 4, kPowerWidth);
  text += ",-,-, " + std::to_string(record.TowerCount) + "\r\n";
  for (int tower = 1; tower <= record.TowerCount; ++tower)
    text += TowerLine(record, static_cast<std::size_t>(tower));
  return text;
}

}  // namespace kestrel
