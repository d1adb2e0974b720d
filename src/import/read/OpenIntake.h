#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "core/Result.h"
#include "import/read/Intake.h"

namespace kestrel {

/// No file given to the importer is longer, and no zip unpacks to more. A list of the whole band has some 5
/// MB, the longest tables, which hold other services too, some tens of MB.
inline constexpr std::uint64_t LargestImportFile = 200ULL << 20;

/// Errors: NotFound, NotAFile, Refused; TooLarge for a file or the content of a zip of more than `largest`
/// bytes, before anything is unpacked; Malformed for a zip that is none.
Result<std::unique_ptr<Intake>> OpenIntake(const QString& path, std::uint64_t largest = LargestImportFile);

}  // namespace kestrel
