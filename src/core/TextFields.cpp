#include "core/TextFields.h"

namespace kestrel {
namespace {

std::optional<std::string_view> CutField(std::string_view& line, char separator) {
  const std::size_t start = line.find_first_not_of(separator);
  if (start == std::string_view::npos) {
    line = {};
    return std::nullopt;
  }
  const std::size_t end = line.find(separator, start);
  const std::string_view field = line.substr(start, end - start);
  const std::size_t next = line.find_first_not_of(separator, end);
  line = next == std::string_view::npos ? std::string_view{} : line.substr(next);
  return field;
}

}  // namespace

std::optional<std::string_view> NextField(std::string_view& line) {
  return CutField(line, ',');
}
std::optional<std::string_view> NextWord(std::string_view& line) {
  return CutField(line, ' ');
}
std::optional<std::string_view> NextBlankField(std::string_view& line) {
  return CutField(line, ' ');
}

}  // namespace kestrel
