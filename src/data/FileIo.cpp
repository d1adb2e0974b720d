#include "data/FileIo.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>

namespace kestrel {
namespace {

Error Failure(const QString& path, Error::Kind kind, const QString& text) {
  return {kind, QFileInfo(path).fileName().toStdString(), 0, text.toStdString()};
}

Error NotAFile(const QString& path) {
  return Failure(path, Error::Kind::NotAFile, "is a folder or a device, not a file");
}

/// Reads a file that should have `size` bytes into `bytes`, which holds one more. Returns how many there
/// were, size + 1 when there are still more; -1 and errno when it cannot be read.
ssize_t ReadAll(int file, ssize_t size, char* bytes) {
  ssize_t length = 0;
  do {
    const ssize_t count = read(file, bytes + length, static_cast<std::size_t>(size + 1 - length));
    if (count == 0) break;
    if (count < 0 && errno != EINTR) return -1;
    if (count > 0) length += count;
  } while (length < size);
  return length;
}

/// Writes all and waits until it is on the disk, where the system can do so; else false and errno.
bool WriteThrough(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(file, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) return false;
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return fdatasync(file) == 0 || errno == EINVAL;
}

}  // namespace

PlainFile::~PlainFile() {
  if (descriptor_ >= 0) close(descriptor_);
}

Result<PlainFile> PlainFile::Open(const QString& path, qint64 largest) {
  // Without waiting at a pipe, and without a terminal becoming the program's.
  const int descriptor =
      open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (descriptor < 0) {
    if (errno == ENOENT || errno == ENOTDIR)
      return Failure(path, Error::Kind::NotFound, "there is no such file");
    return errno == ENXIO ? NotAFile(path) : Failure(path, Error::Kind::Refused, qt_error_string(errno));
  }
  struct stat status = {};
  PlainFile file(descriptor, 0);
  if (fstat(descriptor, &status) != 0) return Failure(path, Error::Kind::Refused, qt_error_string(errno));
  if (!S_ISREG(status.st_mode)) return NotAFile(path);
  if (status.st_size > largest)
    return Failure(path, Error::Kind::TooLarge,
                   QString("is larger than %1 MB, the most that is read").arg(largest >> 20));
  file.size_ = status.st_size;
  return file;
}

Result<QByteArray> ReadFile(const QString& path, qint64 largest) {
  const Result<PlainFile> file = PlainFile::Open(path, largest);
  if (!file) return file.error();
  QByteArray bytes(file->Size() + 1, Qt::Uninitialized);
  const ssize_t length = ReadAll(file->Descriptor(), file->Size(), bytes.data());
  if (length < 0) return Failure(path, Error::Kind::Refused, qt_error_string(errno));
  if (length != file->Size())
    return Failure(path, Error::Kind::Refused, "changed while it was read; try again when it is complete");
  bytes.truncate(length);
  return bytes;
}

Result<Done> WriteFile(const QString& path, std::string_view bytes) {
  const QFileInfo info(path);
  if (info.exists() && !info.isFile()) return NotAFile(path);
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return Failure(path, Error::Kind::Refused, file.errorString());
  // Past the file's own buffer: what does not fit on the disk when that is emptied, commit() does not notice.
  if (!WriteThrough(file.handle(), bytes)) return Failure(path, Error::Kind::Refused, qt_error_string(errno));
  if (!file.commit()) return Failure(path, Error::Kind::Refused, file.errorString());
  return Done{};
}

}  // namespace kestrel
