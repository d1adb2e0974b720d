#include "cli/Json.h"

#include <cassert>
#include <cmath>

#include "core/Numbers.h"

namespace kestrel::cli {

std::string NumberWithZero(float value) {
  std::string text = NumberText(value);
  const std::size_t digits = text.front() == '-' ? 1 : 0;
  if (text[digits] == '.') text.insert(digits, "0");
  return text;
}

void JsonWriter::BeforeValue() {
  if (keyWritten_) {
    keyWritten_ = false;
    return;
  }
  if (depth_ == 0) return;
  if (!first_) document_ += depth_ == 1 ? "," : ", ";
  if (depth_ == 1) document_ += "\n  ";
  first_ = false;
}

JsonWriter& JsonWriter::Open(char bracket) {
  BeforeValue();
  document_ += bracket;
  ++depth_;
  first_ = true;
  return *this;
}

JsonWriter& JsonWriter::Close(char bracket) {
  assert(depth_ > 0 && !keyWritten_);
  --depth_;
  if (depth_ == 0 && !first_) document_ += '\n';
  document_ += bracket;
  first_ = false;
  return *this;
}

JsonWriter& JsonWriter::Key(std::string_view name) {
  BeforeValue();
  Quote(name);
  document_ += ": ";
  keyWritten_ = true;
  return *this;
}

JsonWriter& JsonWriter::Text(std::string_view text) {
  BeforeValue();
  Quote(text);
  return *this;
}

JsonWriter& JsonWriter::Number(float value) {
  if (!std::isfinite(value)) return Null();
  BeforeValue();
  document_ += NumberWithZero(value);
  return *this;
}

JsonWriter& JsonWriter::Decimals(double value) {
  if (!std::isfinite(value)) return Null();
  BeforeValue();
  document_ += FixedText(value, 4);
  return *this;
}

JsonWriter& JsonWriter::Whole(int value) {
  BeforeValue();
  document_ += std::to_string(value);
  return *this;
}

JsonWriter& JsonWriter::Truth(bool value) {
  BeforeValue();
  document_ += value ? "true" : "false";
  return *this;
}

JsonWriter& JsonWriter::Null() {
  BeforeValue();
  document_ += "null";
  return *this;
}

void JsonWriter::Quote(std::string_view text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  document_ += '"';
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      document_ += '\\';
      document_ += c;
    } else if (code < 0x20 || code == 0x7F) {
      document_ += "\\u00";
      document_ += kHex[code >> 4];
      document_ += kHex[code & 15];
    } else {
      document_ += c;
    }
  }
  document_ += '"';
}

std::string JsonWriter::Finish() {
  assert(depth_ == 0);
  document_ += '\n';
  return std::move(document_);
}

}  // namespace kestrel::cli
