#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Result.h"
#include "import/read/TableLayout.h"

namespace kestrel {

/// What a file holds.
struct FileContent {
  std::string Title;                 ///< "AM Query list", "am_towers table"
  std::optional<TableLayout> Table;  ///< none: a list
};

/// Recognises a file by its first bytes. Errors: Malformed, without file and line, for one that is none of
/// the importer's; the text says what it is, or what it lacks.
Result<FileContent> RecogniseFile(std::string_view head);

}  // namespace kestrel
