#pragma once

#include <string>
#include <string_view>

namespace kestrel {

/// The text as a field of a CSV line (RFC 4180): in quotation marks, inner ones doubled, where it needs them.
inline std::string CsvField(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  std::string field = "\"";
  for (const char c : text) {
    if (c == '"') field += '"';
    field += c;
  }
  return field += '"';
}

}  // namespace kestrel
