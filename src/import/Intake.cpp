#include "import/Intake.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "import/ZipIntake.h"

namespace kestrel {
namespace {

class FileStream : public ByteStream {
 public:
  FileStream(const QString& path, std::uint64_t size) : file_(path), left_(size) {}

  bool Open() { return file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered); }
  std::string SystemsWord() const { return file_.errorString().toStdString(); }

  std::size_t Read(char* to, std::size_t most) override {
    const qint64 count = file_.read(to, static_cast<qint64>(most));
    if (count < 0) problem_ = "cannot be read to its end: " + SystemsWord();
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
    auto stream = std::make_unique<FileStream>(path_, parts_.front().size);
    if (!stream->Open()) return Error{Error::Kind::Refused, parts_.front().name, 0, stream->SystemsWord()};
    return std::unique_ptr<ByteStream>(std::move(stream));
  }

 private:
  QString path_;
};

}  // namespace

Result<std::unique_ptr<Intake>> OpenIntake(const QString& path, std::uint64_t largest) {
  const QFileInfo info(path);
  const std::string name = info.fileName().toStdString();
  if (!info.exists()) return Error{Error::Kind::NotFound, name, 0, "there is no such file"};
  if (!info.isFile()) return Error{Error::Kind::NotAFile, name, 0, "is a folder or a device, not a file"};
  const auto size = static_cast<std::uint64_t>(info.size());
  if (size > largest)
    return Error{Error::Kind::TooLarge, name, 0,
                 "is larger than " + std::to_string(largest >> 20) + " MB, the most that is read"};

  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    return Error{Error::Kind::Refused, name, 0, file.errorString().toStdString()};
  const QByteArray front = file.read(4);
  if (front == "PK\x03\x04" || front == "PK\x05\x06") return OpenZip(path, name, largest);
  return std::unique_ptr<Intake>(std::make_unique<PlainIntake>(path, name, size));
}

}  // namespace kestrel
