#include "import/read/RowFields.h"

#include <charconv>
#include <cmath>

#include "core/Text.h"

namespace kestrel {
namespace {

/// The bytes that the characters U+0000 to U+00FF of `text` stand for; nothing when it holds others.
std::optional<std::string> ToLatin1(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto code = static_cast<unsigned char>(text[i]);
    if (code < 0x80) {
      bytes += text[i];
    } else if ((code == 0xC2 || code == 0xC3) && i + 1 < text.size()) {
      bytes += static_cast<char>(((code & 0x03) << 6) | (static_cast<unsigned char>(text[++i]) & 0x3F));
    } else {
      return std::nullopt;
    }
  }
  return bytes;
}

bool IsAscii(std::string_view text) {
  for (const char c : text)
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  return true;
}

}  // namespace

void SplitAtBars(std::string_view line, std::vector<std::string_view>& fields) {
  fields.clear();
  for (std::size_t bar = line.find('|'); bar != std::string_view::npos; bar = line.find('|')) {
    fields.push_back(Trim(line.substr(0, bar)));
    line.remove_prefix(bar + 1);
  }
  fields.push_back(Trim(line));
}

void SplitTableRow(std::string_view row, std::vector<std::string_view>& fields, std::string& unescaped) {
  if (row.find("\\|") == std::string_view::npos) return SplitAtBars(row, fields);
  // A bar inside a column travels as a byte that no UTF-8 text holds.
  constexpr char kBar = '\xFF';
  unescaped.clear();
  for (std::size_t i = 0; i < row.size(); ++i) {
    const bool escape = row[i] == '\\' && i + 1 < row.size() && row[i + 1] == '|';
    unescaped += escape ? kBar : row[i];
    if (escape) ++i;
  }
  SplitAtBars(unescaped, fields);
  for (char& c : unescaped)
    if (c == kBar) c = '|';
}

std::optional<double> WholeNumber(std::string_view text) {
  text = Trim(text);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::optional<double> NumberWithUnit(std::string_view text, std::string_view unit) {
  text = Trim(text);
  if (!text.ends_with(unit)) return std::nullopt;
  text.remove_suffix(unit.size());
  return WholeNumber(text);
}

std::optional<FacilityId> ReadFacilityId(std::string_view text) {
  text = Trim(text);
  if (text.empty() || text == "-") return 0;
  FacilityId id = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return id;
}

std::string MendedName(std::string_view name) {
  std::string text(name);
  if (!IsAscii(text)) {
    const std::optional<std::string> bytes = ToLatin1(text);
    if (bytes && IsUtf8(*bytes)) text = *bytes;
  }
  std::string mended;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto code = static_cast<unsigned char>(text[i]);
    const bool latinControl =
        code == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0;
    if (latinControl) ++i;
    const bool blank = latinControl || code <= ' ' || code == 0x7F;
    if (!blank) mended += text[i];
    if (blank && !mended.empty() && mended.back() != ' ') mended += ' ';
  }
  return std::string(Trim(mended));
}

}  // namespace kestrel
