#pragma once

#include <cassert>
#include <string>
#include <utility>
#include <variant>

namespace kestrel {

/// Why a file could not be read, written or understood.
struct Error {
  enum class Kind {
    NotFound,   ///< there is no such file
    NotAFile,   ///< a folder, a pipe or a device stands in the file's place
    Refused,    ///< the system would not open, read or write it
    TooLarge,   ///< longer than the reader's limit
    Malformed,  ///< read, but not what it should be
  };

  Kind kind = Kind::Refused;
  std::string file;  ///< the name as the user knows it
  int line = 0;      ///< counted from 1; 0 when the whole file is meant
  std::string text;  ///< what is wrong and what to do, a sentence without its full stop

  /// "1030x.dat:17: text", "1030x.dat: text" or "text", whichever parts there are.
  std::string Message() const {
    std::string message = file;
    if (line > 0) message += ':' + std::to_string(line);
    return message.empty() ? text : message + ": " + text;
  }
};

/// A value, or the reason why there is none.
template <typename Value>
class [[nodiscard]] Result {
 public:
  Result(Value value) : content_(std::move(value)) {}
  Result(Error error) : content_(std::move(error)) {}

  explicit operator bool() const { return std::holds_alternative<Value>(content_); }

  /// REQUIRES: there is a value.
  const Value& operator*() const { return std::get<Value>(content_); }
  Value& operator*() { return std::get<Value>(content_); }
  const Value* operator->() const { return &std::get<Value>(content_); }

  /// REQUIRES: there is no value.
  const Error& error() const { return std::get<Error>(content_); }

 private:
  std::variant<Value, Error> content_;
};

/// The outcome of an action that yields nothing.
struct Done {};

}  // namespace kestrel
