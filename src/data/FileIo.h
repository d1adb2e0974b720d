#pragma once

#include <QByteArray>
#include <QString>
#include <string_view>
#include <utility>

#include "core/Result.h"

namespace kestrel {

/// No data file of the program is longer; a longer one is refused before it is read.
inline constexpr qint64 LargestDataFile = 64LL << 20;

/// No last-session file is longer.
inline constexpr qint64 LargestSessionFile = 1LL << 20;

/// A plain file open for reading, closed with this. Neither opening nor reading one ever waits.
class PlainFile {
 public:
  /// Errors: NotFound, NotAFile, TooLarge, Refused; `Error::file` is the last part of the path.
  static Result<PlainFile> Open(const QString& path, qint64 largest);

  PlainFile(PlainFile&& other) noexcept : descriptor_(other.Release()), size_(other.size_) {}
  PlainFile& operator=(PlainFile&&) = delete;
  ~PlainFile();

  int Descriptor() const { return descriptor_; }
  qint64 Size() const { return size_; }  ///< bytes, when it was opened
  /// The descriptor, for a caller who closes it.
  int Release() { return std::exchange(descriptor_, -1); }

 private:
  PlainFile(int descriptor, qint64 size) : descriptor_(descriptor), size_(size) {}

  int descriptor_;
  qint64 size_;
};

/// The whole file, in one piece of memory of its size. Only plain files are read, so that a pipe or a device
/// never makes the program wait. A file that grows or shrinks while it is read is refused, not cut.
/// Errors: NotFound, NotAFile, TooLarge, Refused; `Error::file` is the last part of the path.
Result<QByteArray> ReadFile(const QString& path, qint64 largest = LargestDataFile);

/// Replaces the file as a whole or, on any failure, leaves the old one as it was; so it does when the process
/// is killed, but may then leave a file "NAME.XXXXXX" behind. Errors: NotAFile, Refused.
Result<Done> WriteFile(const QString& path, std::string_view bytes);

}  // namespace kestrel
