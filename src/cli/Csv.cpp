#include "cli/Csv.h"

#include <cassert>
#include <cmath>

#include "cli/Json.h"
#include "core/Csv.h"
#include "core/Numbers.h"

namespace kestrel::cli {

CsvWriter::CsvWriter(std::vector<std::string_view> keys) : keys_(std::move(keys)) {
  for (const std::string_view key : keys_) Key(keys_[column_]).Text(key);
  EndObject();
}

CsvWriter& CsvWriter::BeginObject() {
  assert(column_ == 0);
  return *this;
}

CsvWriter& CsvWriter::EndObject() {
  assert(column_ == keys_.size());
  document_ += "\r\n";
  column_ = 0;
  return *this;
}

CsvWriter& CsvWriter::Key([[maybe_unused]] std::string_view name) {
  assert(column_ < keys_.size() && keys_[column_] == name);
  if (column_++ > 0) document_ += ',';
  return *this;
}

CsvWriter& CsvWriter::Text(std::string_view text) {
  document_ += CsvField(text);
  return *this;
}

CsvWriter& CsvWriter::Number(float value) {
  if (std::isfinite(value)) document_ += NumberWithZero(value);
  return *this;
}

CsvWriter& CsvWriter::Decimals(double value) {
  if (std::isfinite(value)) document_ += FixedText(value, 4);
  return *this;
}

CsvWriter& CsvWriter::Whole(int value) {
  document_ += std::to_string(value);
  return *this;
}

CsvWriter& CsvWriter::Truth(bool value) {
  document_ += value ? "true" : "false";
  return *this;
}

CsvWriter& CsvWriter::Null() {
  return *this;
}

}  // namespace kestrel::cli
