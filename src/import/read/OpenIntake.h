#pragma once

#include <QString>
#include <memory>

#include "core/Result.h"
#include "import/read/Intake.h"

namespace kestrel {

/// Errors: NotFound, NotAFile, Refused; Malformed for a zip that is none; TooLarge for one of more than
/// MostZipEntries files.
Result<std::unique_ptr<Intake>> OpenIntake(const QString& path);

}  // namespace kestrel
