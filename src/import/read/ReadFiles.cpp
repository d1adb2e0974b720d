#include "import/read/ReadFiles.h"

#include <algorithm>
#include <utility>

#include "import/read/FileContent.h"
#include "import/read/LineStream.h"

namespace kestrel {
namespace {

/// Hands bytes on until it is told to stop.
class CountedStream : public ByteStream {
 public:
  CountedStream(ByteStream& stream, const std::function<bool(std::size_t)>& passed)
      : stream_(stream), passed_(passed) {}

  std::size_t Read(char* to, std::size_t most) override {
    const std::size_t count = stream_.Read(to, most);
    return passed_(count) ? count : 0;
  }
  std::string Problem() const override { return stream_.Problem(); }

 private:
  ByteStream& stream_;
  const std::function<bool(std::size_t)>& passed_;
};

class Reading {
 public:
  Reading(const ImportOptions& options, Readings& readings, ImportReport& report,
          const ReadingProgress& progress)
      : options_(options), readings_(readings), report_(report), progress_(progress) {}

  /// Sorts out the files that are the importer's.
  void LookAt(const std::vector<SourceFile>& files);
  void Read();

  const std::optional<Error>& Failure() const { return failure_; }

 private:
  /// A file of the importer's, and its number in the report.
  struct Known {
    const SourceFile* file;
    FileContent content;
    int number;

    bool HoldsAntennas() const { return content.Table && content.Table->Kind == TableKind::AntennaSystems; }
  };

  void Read(const Known& known);
  void Fail(const Error& error) {
    report_.Refuse(error.file, error.text);
    if (!failure_) failure_ = error;
  }
  bool GoesOn(std::string_view name) {
    const double share = static_cast<double>(done_) / static_cast<double>(std::max<std::uint64_t>(total_, 1));
    ended_ = ended_ || (progress_ && !progress_(std::min(share, 1.0), name));
    return !ended_;
  }

  const ImportOptions& options_;
  Readings& readings_;
  ImportReport& report_;
  const ReadingProgress& progress_;
  std::vector<Known> known_;
  std::optional<Error> failure_;
  std::uint64_t done_ = 0;  // bytes
  std::uint64_t total_ = 0;
  bool ended_ = false;
};

void Reading::LookAt(const std::vector<SourceFile>& files) {
  for (const SourceFile& file : files) {
    if (!GoesOn(file.Name)) return;
    const Result<std::unique_ptr<ByteStream>> stream = file.Open();
    if (!stream) {
      Fail(stream.error());
      continue;
    }
    const LineStream lines(**stream);
    Result<FileContent> content = RecogniseFile(lines.Head());
    if (const std::string problem = (*stream)->Problem(); !problem.empty())
      Fail({Error::Kind::Malformed, file.Name, 0, problem});
    else if (!content)
      report_.Refuse(file.Name, content.error().text);
    else if (file.Size > LargestSourceFile)
      Fail({Error::Kind::TooLarge, file.Name, 0,
            "is larger than " + std::to_string(LargestSourceFile >> 20) + " MB, the most that is read"});
    else
      known_.push_back({&file, std::move(*content), 0});
  }
  for (Known& known : known_) {
    known.number = report_.AddFile(known.file->Name, known.content.Title);
    total_ += known.file->Size;
  }
}

void Reading::Read() {
  for (const Known& known : known_)
    if (known.HoldsAntennas()) Read(known);
  SortAntennaApplications(readings_.Tables);
  for (const Known& known : known_)
    if (!known.HoldsAntennas()) Read(known);
}

void Reading::Read(const Known& known) {
  const std::string& name = known.file->Name;
  if (!GoesOn(name)) return;
  const Result<std::unique_ptr<ByteStream>> stream = known.file->Open();
  if (!stream) return Fail(stream.error());
  const std::function<bool(std::size_t)> passed = [&](std::size_t count) {
    done_ += count;
    return GoesOn(name);
  };
  CountedStream counted(**stream, passed);
  LineStream lines(counted);
  if (known.content.Table) {
    readings_.HasTables = true;
    ReadAntennaTable(lines, known.number, *known.content.Table, readings_.Tables, readings_.Dates, report_);
  } else {
    readings_.HasAmq = true;
    ReadAmqList(lines, known.number, options_, readings_.Amq, readings_.Dates, report_);
  }
  if (const std::string problem = counted.Problem(); !problem.empty())
    Fail({Error::Kind::Malformed, name, 0, problem});
}

}  // namespace

std::optional<Error> ReadSourceFiles(const std::vector<SourceFile>& files, const ImportOptions& options,
                                     Readings& readings, ImportReport& report,
                                     const ReadingProgress& progress) {
  Reading reading(options, readings, report, progress);
  reading.LookAt(files);
  reading.Read();
  return reading.Failure();
}

}  // namespace kestrel
