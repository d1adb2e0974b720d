#include "import/Import.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include "data/DataSwap.h"
#include "data/FileIo.h"
#include "data/StationFile.h"
#include "import/merge/CallIndex.h"
#include "import/merge/Merge.h"
#include "import/merge/StationFiles.h"
#include "import/read/OpenIntake.h"
#include "import/read/ReadFiles.h"

namespace kestrel {
namespace {

constexpr double kReadingShare = 0.8;  // of the whole work

const Error kCancelled{Error::Kind::Refused, "", 0, "cancelled; the station files are as they were"};

/// Counts the bytes that pass, tells of them, and ends early when told to.
class ProgressStream : public ByteStream {
 public:
  ProgressStream(ByteStream& stream, const std::function<bool(std::size_t)>& passed)
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

/// Reads all files into the report and the readings. Of those that cannot be read all are named. `newest`
/// becomes the time of the newest file that has rows.
std::optional<Error> ReadAll(const ImportRequest& request, const ImportProgress& progress, Readings& readings,
                             ImportReport& report, QDateTime& newest) {
  std::optional<Error> failure;
  const auto fail = [&](const Error& error) {
    report.Refuse(error.file, error.text);
    if (!failure) failure = error;
  };
  std::vector<std::pair<std::unique_ptr<Intake>, QDateTime>> intakes;
  std::uint64_t total = 1;
  for (const QString& path : request.Files) {
    Result<std::unique_ptr<Intake>> intake = OpenIntake(path);
    if (!intake) {
      fail(intake.error());
      continue;
    }
    for (const Intake::Part& part : (*intake)->Parts()) total += part.Size;
    if ((*intake)->Parts().empty())
      report.Refuse(QFileInfo(path).fileName().toStdString(), "is a zip without files");
    intakes.emplace_back(std::move(*intake), QFileInfo(path).lastModified());
  }

  std::uint64_t done = 0;
  bool cancelled = false;
  for (const auto& [intake, time] : intakes) {
    const int rowsBefore = report.Total().Rows;
    for (std::size_t i = 0; i < intake->Parts().size() && !cancelled; ++i) {
      const Intake::Part& part = intake->Parts()[i];
      Result<std::unique_ptr<ByteStream>> stream = intake->Open(i);
      if (!stream) {
        fail(stream.error());
        continue;
      }
      const std::function<bool(std::size_t)> passed = [&](std::size_t count) {
        done += count;
        const double share = kReadingShare * static_cast<double>(done) / static_cast<double>(total);
        cancelled = cancelled || (progress && !progress(std::min(share, kReadingShare), part.Name));
        return !cancelled;
      };
      ProgressStream counted(**stream, passed);
      ReadSourceFile(counted, part.Name, request.Options, readings, report);
      if (const std::string problem = counted.Problem(); !problem.empty())
        fail({Error::Kind::Malformed, part.Name, 0, problem});
    }
    if (report.Total().Rows > rowsBefore) newest = std::max(newest, time);
  }
  return cancelled ? kCancelled : failure;
}

/// "The FCC's AM Query list and antenna tables, files of 2 August 2026, 10980 stations"
std::string StationsLine(const QDateTime& newest, const Readings& readings, int stations) {
  std::string line = "The FCC's ";
  if (readings.HasAmq) line += "AM Query list";
  if (readings.HasAmq && readings.HasTables) line += " and ";
  if (readings.HasTables) line += "antenna tables";
  line += ", files of " + QLocale::c().toString(newest.date(), "d MMMM yyyy").toStdString();
  return line + ", " + std::to_string(stations) + " stations";
}

/// Takes note of what the file changes in the folder, and hands it on.
void CompareAndPass(const std::string& name, std::string bytes, const DataFolder& folder,
                    const TakeFile& take, ChangeList& changes) {
  if (!name.ends_with("x.dat")) return take(name, std::move(bytes));
  const int channel = std::stoi(name);
  const ListedAntennas antennas = ReadAntennas(channel, name, bytes);
  take(name, std::move(bytes));  // and is held no longer
  const ListedAntennas before = [&] {
    const Result<QByteArray> old = folder.Read(QString::fromStdString(name));
    if (!old) return ListedAntennas{};
    return ReadAntennas(channel, name, {old->constData(), static_cast<std::size_t>(old->size())});
  }();
  for (Change& change : CompareChannel(before, antennas)) changes.push_back(std::move(change));
}

ImportOutcome Import(const ImportRequest& request, const DataFolder& folder, const ImportProgress& progress) {
  ImportOutcome outcome;
  Readings readings;
  QDateTime newest;
  outcome.Failure = ReadAll(request, progress, readings, outcome.Report, newest);
  if (outcome.Failure && outcome.Failure->text == kCancelled.text) {
    outcome.Report = {};  // its counts would not add up
    return outcome;
  }
  const auto goesOn = [&](double done, std::string_view what) {
    if (progress && !progress(done, what) && !outcome.Failure) outcome.Failure = kCancelled;
  };

  goesOn(kReadingShare, "putting the stations together");
  Stations stations =
      MergeStations(std::move(readings.Amq), readings.Tables, request.Options, outcome.Report);
  readings.Tables = {};
  CountStations(stations, outcome.Report);
  outcome.StationsLine = StationsLine(newest, readings, outcome.Report.Stations);
  if (stations.empty() && !outcome.Failure)
    outcome.Failure =
        Error{Error::Kind::Malformed, "", 0, "no station was found; the station files are as they were"};
  goesOn(0.9, "making the station files");

  const auto makeFiles = [&](const TakeFile& take) {
    MakeStationFiles(std::move(stations), outcome.StationsLine, outcome.Report, take);
  };
  const TakeFile drop = [](const std::string&, const std::string&) {};
  if (outcome.Failure) {
    makeFiles(drop);  // for what the report has to say of them
    return outcome;
  }
  const FileSource compared = [&](const TakeFile& take) {
    makeFiles([&](const std::string& name, std::string bytes) {
      CompareAndPass(name, std::move(bytes), folder, take, outcome.Changes);
    });
  };
  if (request.DryRun) {
    compared(drop);
    return outcome;
  }
  if (const Result<Done> swapped = SwapInStations(folder, compared); !swapped) {
    outcome.Failure = swapped.error();
    return outcome;
  }
  if (progress) progress(1, "done");  // it is too late for cancelling
  return outcome;
}

}  // namespace

ImportOutcome RunImport(const ImportRequest& request, const DataFolder& folder,
                        const ImportProgress& progress) {
  try {
    return Import(request, folder, progress);
  } catch (const std::bad_alloc&) {
    ImportOutcome outcome;
    outcome.Failure =
        Error{Error::Kind::Refused, "", 0,
              "there is not enough memory for so long files; the station files are as they were"};
    return outcome;
  }
}

std::string OutcomeText(const ImportOutcome& outcome, std::size_t mostChanges) {
  if (outcome.Report.Files().empty() && outcome.Report.Refusals().empty()) return {};
  const std::string text = ReportText(outcome.Report);
  if (outcome.Failure) return text;
  return text + "\nChanges\n" + ChangesText(outcome.Changes, mostChanges);
}

}  // namespace kestrel
