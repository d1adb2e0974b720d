#pragma once

#include "data/FileIo.h"
#include "import/Intake.h"

namespace kestrel {

/// A zip's entries as parts; folders are none. `name` is what reports call the zip. Errors as OpenIntake's.
Result<std::unique_ptr<Intake>> OpenZip(PlainFile file, const std::string& name, std::uint64_t largest);

}  // namespace kestrel
