#pragma once

#include <QByteArray>
#include <QString>
#include <string_view>

#include "core/Result.h"

namespace kestrel {

/// No data file of the program is longer; a longer one is refused before it is read.
inline constexpr qint64 LargestDataFile = 64LL << 20;

/// The whole file. Only plain files are opened, so that a pipe or a device never makes the program wait.
/// A file that grows while it is read is cut at `largest` and refused.
/// Errors: NotFound, NotAFile, TooLarge, Refused; `Error::file` is the last part of the path.
Result<QByteArray> ReadFile(const QString& path, qint64 largest = LargestDataFile);

/// Replaces the file as a whole or, on any failure, leaves the old one as it was. Errors: NotAFile, Refused.
Result<Done> WriteFile(const QString& path, std::string_view bytes);

}  // namespace kestrel
