#pragma once

#include <string>
#include <string_view>
#include <vector>

// The files read anew by what docs/formats says, with nothing of the program's own readers: slow and plain,
// for comparison.

namespace kestrel::fuzz {

struct TextLine {
  std::string Bytes;  ///< as the file has it, cut where a line is too long
  std::string Text;
};

std::vector<TextLine> LinesByTheRules(std::string_view bytes);

/// The lines' texts alone, those of no characters left out.
std::vector<std::string> EntriesByTheRules(std::string_view bytes);

/// Without the blanks at both ends.
std::string Trimmed(const std::string& text);

/// All fields of a line, a run of separators counting as one; at least `least`, empty ones after the last.
std::vector<std::string> FieldsByTheRules(const std::string& line, char separator, std::size_t least);

/// The characters of columns `first` to `last`, counted from 1.
std::string ColumnsByTheRules(const std::string& line, std::size_t first, std::size_t last);

/// The leading number, limited to the largest single.
double NumberByTheRules(const std::string& text);

}  // namespace kestrel::fuzz
