#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

enum class TableKind { AntennaSystems, Towers, Augmentations, EngineeringData, Applications, Facilities };

/// One of the six tables.
struct TableColumns {
  TableKind Kind;
  std::string_view Name;  ///< "am_towers"
  std::vector<std::string_view>
      Columns;  ///< in the order of the older files; the later ones are sorted by name
  std::vector<std::string_view> Recognised;  ///< with these among its names a header is one of this table
  std::vector<std::string_view> Required;    ///< without these nothing can be taken from it
};

const std::vector<TableColumns>& KnownTables();

/// Whether any of the tables, older or current, has a column of this name.
bool IsColumnName(std::string_view name);

/// A table of the current system: its key column, and under which older names its columns go on.
struct CurrentTable {
  TableKind Kind;
  std::string_view Name;  ///< "app_am_antenna"
  std::string_view Key;   ///< only this table has this column
  struct Alias {
    std::string_view OlderName;
    std::vector<std::string_view>
        Parts;  ///< the column's name holds all of these; of several the shortest is meant
  };
  std::vector<Alias> Aliases;
};

const std::vector<CurrentTable>& CurrentTables();

}  // namespace kestrel
