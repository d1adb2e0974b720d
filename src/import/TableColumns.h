#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "import/TableLayout.h"

namespace kestrel {

/// One of the six tables.
struct TableColumns {
  Table table;
  std::string_view name;  ///< "am_towers"
  std::vector<std::string_view>
      columns;  ///< in the order of the older files; the later ones are sorted by name
  std::vector<std::string_view> recognised;  ///< with these among its names a header is one of this table
  std::vector<std::string_view> required;    ///< without these nothing can be taken from it
};

const std::vector<TableColumns>& KnownTables();

/// Whether any of the tables, older or current, has a column of this name.
bool IsColumnName(std::string_view name);

/// A table of the current system: its key column, and under which older names its columns go on.
struct CurrentTable {
  Table table;
  std::string_view name;  ///< "app_am_antenna"
  std::string_view key;   ///< only this table has this column
  struct Alias {
    std::string_view olderName;
    std::vector<std::string_view>
        parts;  ///< the column's name holds all of these; of several the shortest is meant
  };
  std::vector<Alias> aliases;
};

const std::vector<CurrentTable>& CurrentTables();

}  // namespace kestrel
