#include "ByTheRules.h"

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>

namespace kestrel::fuzz {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool Continues(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// The characters by number; nothing when the bytes are not UTF-8.
std::optional<std::u32string> Decoded(const std::string& bytes) {
  constexpr std::uint32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
  std::u32string characters;
  for (std::size_t i = 0; i < bytes.size();) {
    const std::uint32_t lead = static_cast<unsigned char>(bytes[i++]);
    const int more = lead < 0x80   ? 0
                     : lead < 0xC0 ? -1
                     : lead < 0xE0 ? 1
                     : lead < 0xF0 ? 2
                     : lead < 0xF8 ? 3
                                   : -1;
    if (more < 0) return std::nullopt;
    std::uint32_t value = more == 0 ? lead : lead & (0x3FU >> more);
    for (int k = 0; k < more; ++k, ++i) {
      if (i == bytes.size() || !Continues(bytes[i])) return std::nullopt;
      value = value * 64 + (static_cast<unsigned char>(bytes[i]) & 0x3FU);
    }
    if (value < kSmallest[more] || value > 0x10FFFF || (value >= 0xD800 && value < 0xE000))
      return std::nullopt;
    characters += static_cast<char32_t>(value);
  }
  return characters;
}

std::string TextOf(const std::string& bytes) {
  std::string text;
  const bool isUtf8 = Decoded(bytes).has_value();
  for (const char c : bytes) {
    const auto code = static_cast<unsigned char>(c);
    if (code == 0) {
      text += ' ';
    } else if (code < 0x80 || isUtf8) {
      text += c;
    } else {
      text += static_cast<char>(0xC0 + code / 64);
      text += static_cast<char>(0x80 + code % 64);
    }
  }
  return text;
}

/// At most 4096 bytes, without a piece of a character at the end.
std::string CutLine(std::string line) {
  if (line.size() <= 4096) return line;
  std::size_t length = 4096;
  for (int k = 0; k < 3 && Continues(line[length]); ++k) --length;
  line.resize(length);
  return line;
}

double ByTheLibrary(const std::string& number) {
  static const locale_t kPlain = newlocale(LC_ALL_MASK, "C", nullptr);
  constexpr double kLargest = std::numeric_limits<float>::max();
  return std::clamp(strtod_l(number.c_str(), nullptr, kPlain), -kLargest, kLargest);
}

}  // namespace

std::vector<TextLine> LinesByTheRules(std::string_view bytes) {
  if (bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.remove_prefix(3);
  std::vector<TextLine> lines;
  std::string line;
  const auto end = [&] {
    line = CutLine(std::move(line));
    lines.push_back({line, TextOf(line)});
    line.clear();
  };
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n' || (bytes[i] == '\r' && bytes.substr(i + 1, 1) != "\n"))
      end();
    else if (bytes[i] != '\r')
      line += bytes[i];
  }
  if (!bytes.empty() && bytes.back() != '\n' && bytes.back() != '\r') end();
  return lines;
}

std::vector<std::string> EntriesByTheRules(std::string_view bytes) {
  std::vector<std::string> entries;
  for (const TextLine& line : LinesByTheRules(bytes))
    if (!line.Text.empty()) entries.push_back(line.Text);
  return entries;
}

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

std::vector<std::string> FieldsByTheRules(const std::string& line, char separator, std::size_t least) {
  std::vector<std::string> fields;
  bool inside = false;
  for (const char c : line) {
    if (c != separator && !inside) fields.emplace_back();
    inside = c != separator;
    if (inside) fields.back() += c;
  }
  fields.resize(std::max(fields.size(), least));
  return fields;
}

std::string ColumnsByTheRules(const std::string& line, std::size_t first, std::size_t last) {
  std::string columns;
  std::size_t column = 0;
  for (const char c : line) {
    if (!Continues(c)) ++column;
    if (column >= first && column <= last) columns += c;
  }
  return columns;
}

double NumberByTheRules(const std::string& text) {
  std::size_t i = 0;
  const auto at = [&](std::size_t k) { return k < text.size() ? text[k] : '\0'; };
  while (at(i) == ' ') ++i;
  const std::size_t begin = i;
  if (at(i) == '+' || at(i) == '-') ++i;
  bool digits = false;
  while (IsDigit(at(i))) ++i, digits = true;
  if (at(i) == '.') ++i;
  while (IsDigit(at(i))) ++i, digits = true;
  if (!digits) return 0;
  if (at(i) == 'e' || at(i) == 'E') {
    const std::size_t sign = at(i + 1) == '+' || at(i + 1) == '-' ? i + 2 : i + 1;
    if (IsDigit(at(sign)))
      for (i = sign; IsDigit(at(i));) ++i;
  }
  return ByTheLibrary(text.substr(begin, i - begin));
}

}  // namespace kestrel::fuzz
