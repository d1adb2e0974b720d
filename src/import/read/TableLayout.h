#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Result.h"
#include "import/read/TableColumns.h"

// Which antenna table a file holds, and in which order its columns stand. docs/formats/antenna-tables.md
// describes the tables.

namespace kestrel {

struct TableLayout {
  TableKind Kind = TableKind::Towers;
  std::string Title;                 ///< "am_towers table"
  std::vector<std::string> Columns;  ///< in file order; those of the current system under their older names
  bool Header = false;               ///< the first line holds the names
  bool EndMarks = true;              ///< every row ends in "|^|"
  bool Current = false;  ///< of the current system: active_ind takes the place of the record types
};

/// Recognises a table by the first lines of its file: by the names of a header, else by what stands in the
/// columns of its first rows. Errors: Malformed, without file and line; the text says why it is no table that
/// can be read, naming the columns that are missing.
Result<TableLayout> RecogniseTable(std::string_view head);

}  // namespace kestrel
