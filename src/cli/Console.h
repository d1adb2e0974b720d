#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/Result.h"

// How the companion speaks: results on standard output, messages on standard error, an exit status.

namespace kestrel::cli {

enum ExitStatus { Succeeded = 0, Failed = 1, WronglyUsed = 2 };

/// The data or a file failed. Thrown by commands; the text goes to standard error, the status is Failed.
struct Failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The command line asks for what cannot be. The status is WronglyUsed.
struct WrongUse : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A line on standard error: "kestrel-cli: " and the text.
void Say(std::string_view text);
void Say(const std::vector<std::string>& texts);

/// Writes to standard output at once. Throws Failure when it does not take it all.
void Print(std::string_view text);

/// The error as a Failure that names `path`, as the user gave it, and then says `advice`.
[[noreturn]] void Fail(const std::string& path, const Error& error, std::string_view advice = {});

}  // namespace kestrel::cli
