#pragma once

#include <memory>
#include <string>

#include "core/Result.h"
#include "data/FileIo.h"
#include "import/read/Intake.h"

namespace kestrel {

/// No zip given to the importer has more entries.
inline constexpr int MostZipEntries = 1000;

/// A zip's entries as parts; folders are none. `name` is what reports call the zip. Errors as OpenIntake's.
Result<std::unique_ptr<Intake>> OpenZip(PlainFile file, const std::string& name);

}  // namespace kestrel
