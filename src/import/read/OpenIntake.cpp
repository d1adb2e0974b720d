#include "import/read/OpenIntake.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <limits>
#include <string_view>

#include "data/FileIo.h"
#include "import/read/ZipIntake.h"

namespace kestrel {
namespace {

constexpr qint64 kAnySize = std::numeric_limits<qint64>::max();

class FileStream : public ByteStream {
 public:
  /// The file should still be of that size.
  FileStream(PlainFile file, std::uint64_t size) : left_(size) {
    file_.open(file.Release(), QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
  }

  std::size_t Read(char* to, std::size_t most) override {
    const qint64 count = file_.read(to, static_cast<qint64>(most));
    if (count < 0) problem_ = "cannot be read to its end: " + file_.errorString().toStdString();
    const auto got = static_cast<std::uint64_t>(std::max<qint64>(count, 0));
    if (count >= 0 && (got > left_ || (got == 0 && left_ > 0))) problem_ = "changed while it was read";
    left_ -= std::min(got, left_);
    return problem_.empty() ? got : 0;
  }

  std::string Problem() const override { return problem_; }

 private:
  QFile file_;
  std::uint64_t left_;  // of its size
  std::string problem_;
};

class PlainIntake : public Intake {
 public:
  PlainIntake(QString path, std::string name, std::uint64_t size) : path_(std::move(path)) {
    parts_.push_back({std::move(name), size});
  }

  Result<std::unique_ptr<ByteStream>> Open(std::size_t) override {
    Result<PlainFile> file = PlainFile::Open(path_, kAnySize);
    if (!file) return file.error();
    return std::unique_ptr<ByteStream>(std::make_unique<FileStream>(std::move(*file), parts_.front().Size));
  }

 private:
  QString path_;
};

bool IsZip(const PlainFile& file) {
  char front[4] = {};
  if (pread(file.Descriptor(), front, sizeof front, 0) != sizeof front) return false;
  const std::string_view signature(front, sizeof front);
  return signature == "PK\x03\x04" || signature == "PK\x05\x06";
}

}  // namespace

Result<std::unique_ptr<Intake>> OpenIntake(const QString& path) {
  Result<PlainFile> file = PlainFile::Open(path, kAnySize);
  if (!file) return file.error();
  const std::string name = QFileInfo(path).fileName().toStdString();
  if (IsZip(*file)) return OpenZip(std::move(*file), name);
  const auto size = static_cast<std::uint64_t>(file->Size());
  return std::unique_ptr<Intake>(std::make_unique<PlainIntake>(path, name, size));
}

}  // namespace kestrel
