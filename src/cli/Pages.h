#pragma once

#include <string>

// What the manual page and the shell's completion say of the companion's commands and options: told by the
// same description that its help is made from.

namespace kestrel::cli {

/// Sections OPTIONS and COMMANDS of the manual page, for man(7): every option with its value and its help,
/// those for all commands first, then the commands one after the other.
std::string ManualSections();

/// A line for each option of each command: command, option and the kind of its value, blanks between; "-" for
/// an option that takes none. Options for all commands have the command "*", files named without an option
/// the option "FILE".
///
///     * --data DIR
///     map --hours all|day|night
std::string CompletionTable();

}  // namespace kestrel::cli
