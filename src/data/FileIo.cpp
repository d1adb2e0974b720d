#include "data/FileIo.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace kestrel {
namespace {

Error Failure(const QString& path, Error::Kind kind, const QString& text) {
  return {kind, QFileInfo(path).fileName().toStdString(), 0, text.toStdString()};
}

}  // namespace

Result<QByteArray> ReadFile(const QString& path, qint64 largest) {
  const QFileInfo info(path);
  if (!info.exists()) return Failure(path, Error::Kind::NotFound, "there is no such file");
  if (!info.isFile()) return Failure(path, Error::Kind::NotAFile, "is a folder or a device, not a file");
  const auto tooLarge = [&] {
    return Failure(path, Error::Kind::TooLarge,
                   QString("is larger than %1 MB, the most that is read").arg(largest >> 20));
  };
  if (info.size() > largest) return tooLarge();

  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return Failure(path, Error::Kind::Refused, file.errorString());
  QByteArray bytes = file.read(largest + 1 < info.size() * 2 + 4096 ? largest + 1 : info.size() * 2 + 4096);
  if (file.error() != QFileDevice::NoError) return Failure(path, Error::Kind::Refused, file.errorString());
  if (bytes.size() > largest) return tooLarge();
  return bytes;
}

Result<Done> WriteFile(const QString& path, std::string_view bytes) {
  const QFileInfo info(path);
  if (info.exists() && !info.isFile())
    return Failure(path, Error::Kind::NotAFile, "is a folder or a device, not a file");
  QSaveFile file(path);
  const auto length = static_cast<qint64>(bytes.size());
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), length) != length || !file.commit())
    return Failure(path, Error::Kind::Refused, file.errorString());
  return Done{};
}

}  // namespace kestrel
