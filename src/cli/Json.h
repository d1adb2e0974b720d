#pragma once

#include <string>
#include <string_view>

namespace kestrel::cli {

/// Writes one JSON document (RFC 8259). The elements of the outermost array or object stand on lines of their
/// own, what is inside them on one line.
class JsonWriter {
 public:
  JsonWriter& BeginArray() { return Open('['); }
  JsonWriter& EndArray() { return Close(']'); }
  JsonWriter& BeginObject() { return Open('{'); }
  JsonWriter& EndObject() { return Close('}'); }

  /// The name of the object member whose value follows.
  JsonWriter& Key(std::string_view name);

  /// UTF-8.
  JsonWriter& Text(std::string_view text);
  /// The shortest digits that read back to the same single; null when it is no finite number.
  JsonWriter& Number(float value);
  /// Four decimals; null when it is no finite number.
  JsonWriter& Decimals(double value);
  JsonWriter& Whole(int value);
  JsonWriter& Truth(bool value);
  JsonWriter& Null();

  /// The whole document with its line end. Call once, when everything is closed.
  std::string Finish();

 private:
  JsonWriter& Open(char bracket);
  JsonWriter& Close(char bracket);
  void BeforeValue();
  void Quote(std::string_view text);

  std::string document_;
  int depth_ = 0;
  bool first_ = true;  // nothing stands in the innermost container yet
  bool keyWritten_ = false;
};

/// A number with a digit before its point: "0.5" where NumberText gives ".5".
/// REQUIRES: the value is finite.
std::string NumberWithZero(float value);

}  // namespace kestrel::cli
