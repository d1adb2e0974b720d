#pragma once

#include <functional>
#include <string>

// The table of the benchmarks: each row a piece of work, done the fast way and another one.

namespace kestrel::bench {

/// What a row asks for; 0: nothing.
struct Asked {
  double Ratio = 0;         ///< at least
  double Milliseconds = 0;  ///< at most
  bool ByClock = false;     ///< for work of several processors: by the clock on the wall, not their time
};

/// Adds a row. The work is done in rounds that alternate with all others, and the medians of
/// their times are compared: the processor's, which others at work on the machine disturb least.
void AddRow(const std::string& work, const std::string& against, const Asked& asked,
            std::function<void()> fast, std::function<void()> other);

/// Adds a row that is compared with nothing.
void AddRow(const std::string& work, const Asked& asked, std::function<void()> fast);

/// Adds a line of text under the table.
void AddNote(const std::string& text);

/// Measures all rows and prints the table.
void MeasureAndPrint(int argc, char** argv);

/// Keeps a result from being optimised away.
void Keep(const void* result);

}  // namespace kestrel::bench
