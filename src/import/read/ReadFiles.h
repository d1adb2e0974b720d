#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/Result.h"
#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/read/AmqList.h"
#include "import/read/AntennaTables.h"

namespace kestrel {

/// Everything that the files said, before it is put together.
struct Readings {
  AmqStations Amq;
  AntennaTables Tables;
  bool HasAmq = false;
  bool HasTables = false;
};

/// Reads a file of any kind, recognised by its content, to its end; adds it to `report` under `name`. A file
/// that is none of those the importer knows is refused there, with the reason, unless `bytes` has a problem:
/// that is for who opened it to tell.
void ReadSourceFile(ByteStream& bytes, const std::string& name, const ImportOptions& options,
                    Readings& readings, ImportReport& report);

}  // namespace kestrel
