#include <sys/mman.h>
#include <unistd.h>

#include <QString>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "MemoryStream.h"
#include "Targets.h"
#include "data/StationFile.h"
#include "data/SwapJournal.h"
#include "import/merge/Merge.h"
#include "import/merge/StationFiles.h"
#include "import/read/AmqList.h"
#include "import/read/LineStream.h"
#include "import/read/OpenIntake.h"
#include "import/read/ReadFiles.h"

namespace kestrel::fuzz {
namespace {

constexpr Date kToday(std::chrono::year(2026), std::chrono::month(8), std::chrono::day(2));

/// Puts the stations together and reads the files that come of it. Returns whether there is a station.
bool Finish(Readings readings, const ImportOptions& options, ImportReport& report) {
  const Stations stations = MergeStations(std::move(readings.Amq), readings.Tables, options, report);
  const ImportReport::File total = report.Total();
  Hold(total.Rows == total.Taken + total.LeftOut, "every row is taken or left out, once");

  std::size_t records = 0;
  MakeStationFiles(stations, "a line", report, [&](const std::string& name, const std::string& bytes) {
    if (!name.ends_with("x.dat")) return;
    StationFileReader reader(name, bytes);
    while (reader.Next()) ++records;
    Hold(reader.Notes().empty(), "an imported file has no faults");
  });
  Hold(records == stations.size(), "an imported station is read again");
  ReportText(report);
  return !stations.empty();
}

/// The first byte chooses the options.
ImportOptions ChosenOptions(std::string_view& bytes) {
  const char choice = bytes.empty() ? '\0' : bytes.front();
  if (!bytes.empty()) bytes.remove_prefix(1);
  ImportOptions options;
  options.IncludeSilent = choice & 1;
  options.IncludePermits = choice & 2;
  if (choice & 4) options.Countries = {"US", "MX"};
  return options;
}

}  // namespace

bool AmqList(std::string_view bytes) {
  const ImportOptions options = ChosenOptions(bytes);
  Readings readings(kToday);
  readings.HasAmq = true;
  ImportReport report;
  MemoryStream stream(bytes);
  LineStream lines(stream);
  ReadAmqList(lines, report.AddFile("amq.txt", "AM Query list"), options, readings.Amq, readings.Dates,
              report);
  return Finish(std::move(readings), options, report);
}

/// Several files, a line with an equals sign between them.
bool AntennaTables(std::string_view bytes) {
  constexpr std::string_view kBetween = "\n=\n";
  const ImportOptions options = ChosenOptions(bytes);
  Readings readings(kToday);
  ImportReport report;
  std::vector<SourceFile> files;
  for (std::size_t end = 0; !bytes.empty(); bytes.remove_prefix(end)) {
    end = bytes.find(kBetween);
    files.push_back({"file", bytes.size(), [text = bytes.substr(0, end)] {
                       return Result<std::unique_ptr<ByteStream>>(std::make_unique<MemoryStream>(text));
                     }});
    end = end == std::string_view::npos ? bytes.size() : end + kBetween.size();
  }
  Hold(!ReadSourceFiles(files, options, readings, report), "bytes in memory are read to their end");
  return Finish(std::move(readings), options, report);
}

bool ImportJournal(std::string_view bytes) {
  const std::optional<SwapJournal> journal = ReadJournal(bytes);
  if (!journal) return false;
  QStringList names = journal->OldFiles + journal->NewFiles;
  for (const QString& name : names << journal->Source)
    Hold(!name.isEmpty() && name != "." && name != ".." && !name.contains('/'),
         "a name of the folder itself");
  const std::string text = JournalText(*journal);
  const std::optional<SwapJournal> again = ReadJournal(text);
  Hold(again && JournalText(*again) == text, "a journal reads back to the same");
  return true;
}

/// Taken when every part is unpacked whole; of long ones the front.
bool ZipIntake(std::string_view bytes) {
  constexpr std::uint64_t kMostUnpacked = 1 << 20;
  const int file = memfd_create("zip", MFD_CLOEXEC);
  Hold(file >= 0 && write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()),
       "there is memory for the input");
  const auto intake = OpenIntake("/proc/self/fd/" + QString::number(file));
  bool whole = static_cast<bool>(intake);
  for (std::size_t part = 0; intake && part < (*intake)->Parts().size(); ++part) {
    const std::uint64_t size = (*intake)->Parts()[part].Size;
    const auto stream = (*intake)->Open(part);
    whole = whole && static_cast<bool>(stream);
    if (!stream) continue;
    std::vector<char> buffer(4096);
    std::uint64_t length = 0;
    std::size_t count = 1;
    while (count > 0 && length < kMostUnpacked)
      length += count = (*stream)->Read(buffer.data(), buffer.size());
    Hold(length <= size, "a part is no longer than it says");
    Hold(count > 0 || length == size || !(*stream)->Problem().empty(),
         "a part that is shorter has a problem");
    whole = whole && (*stream)->Problem().empty();
  }
  close(file);
  return whole;
}

}  // namespace kestrel::fuzz
