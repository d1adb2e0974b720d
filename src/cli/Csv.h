#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel::cli {

/// Writes records as CSV (RFC 4180): one header line, then a line for each record; points in numbers, nothing
/// where there is no value. It takes the verbs of JsonWriter, so that one function writes a record either
/// way.
class CsvWriter {
 public:
  /// The keys of a record's members, in the order in which they will be written.
  explicit CsvWriter(std::vector<std::string_view> keys);

  CsvWriter& BeginObject();
  CsvWriter& EndObject();
  /// REQUIRES: the next of the keys.
  CsvWriter& Key(std::string_view name);

  CsvWriter& Text(std::string_view text);
  CsvWriter& Number(float value);
  CsvWriter& Decimals(double value);
  CsvWriter& Whole(int value);
  CsvWriter& Truth(bool value);
  CsvWriter& Null();

  std::string Finish() { return std::move(document_); }

 private:
  std::vector<std::string_view> keys_;
  std::size_t column_ = 0;
  std::string document_;
};

}  // namespace kestrel::cli
