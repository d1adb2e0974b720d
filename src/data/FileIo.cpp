#include "data/FileIo.h"

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

Result<QByteArray> ReadFile(const QString& path, qint64 largest) {
  const QFileInfo info(path);
  if (!info.isFile())
    return info.exists() ? Failure(path, Error::Kind::NotAFile, "is a folder or a device, not a file")
                         : Failure(path, Error::Kind::NotFound, "there is no such file");
  const auto tooLarge = [&] {
    return Failure(path, Error::Kind::TooLarge,
                   QString("is larger than %1 MB, the most that is read").arg(largest >> 20));
  };
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
    return Failure(path, Error::Kind::Refused, file.errorString());
  const qint64 size = info.size();
  if (size > largest) return tooLarge();
  QByteArray bytes(size + 1, Qt::Uninitialized);  // room for one byte more than there should be
  const qint64 length = file.read(bytes.data(), bytes.size());
  if (length < 0) return Failure(path, Error::Kind::Refused, file.errorString());
  if (length != size)
    return Failure(path, Error::Kind::Refused, "changed while it was read; try again when it is complete");
  bytes.truncate(size);
  return bytes;
}

Result<Done> WriteFile(const QString& path, std::string_view bytes) {
  const QFileInfo info(path);
  if (info.exists() && !info.isFile())
    return Failure(path, Error::Kind::NotAFile, "is a folder or a device, not a file");
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return Failure(path, Error::Kind::Refused, file.errorString());
  // Past the file's own buffer: what does not fit on the disk when that is emptied, commit() does not notice.
  if (!WriteThrough(file.handle(), bytes)) return Failure(path, Error::Kind::Refused, qt_error_string(errno));
  if (!file.commit()) return Failure(path, Error::Kind::Refused, file.errorString());
  return Done{};
}

}  // namespace kestrel
