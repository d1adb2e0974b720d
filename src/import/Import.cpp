#include "import/Import.h"

#include <QDate>
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

Error Unchanged(Error::Kind kind, const std::string& why) {
  return {kind, "", 0, why + "; the station files are as they were"};
}

/// The files that were given, those of zips each by itself. Of those that cannot be opened all are named in
/// `report`; the first is returned.
std::optional<Error> OpenAll(const QStringList& paths, std::vector<std::unique_ptr<Intake>>& intakes,
                             std::vector<SourceFile>& files, ImportReport& report) {
  std::optional<Error> failure;
  for (const QString& path : paths) {
    Result<std::unique_ptr<Intake>> opened = OpenIntake(path);
    if (!opened) {
      report.Refuse(opened.error().file, opened.error().text);
      if (!failure) failure = opened.error();
      continue;
    }
    Intake& intake = *intakes.emplace_back(std::move(*opened));
    if (intake.Parts().empty())
      report.Refuse(QFileInfo(path).fileName().toStdString(), "is a zip without files");
    for (std::size_t i = 0; i < intake.Parts().size(); ++i)
      files.push_back(
          {intake.Parts()[i].Name, intake.Parts()[i].Size, [&intake, i] { return intake.Open(i); }});
  }
  return failure;
}

/// The date of the newest file that has rows.
QDate NewestFile(const QStringList& paths, const ImportReport& report) {
  QDateTime newest;
  for (const QString& path : paths) {
    const std::string name = QFileInfo(path).fileName().toStdString();
    const bool hasRows =
        std::any_of(report.Files().begin(), report.Files().end(), [&](const ImportReport::File& file) {
          return file.Rows > 0 && (file.Name == name || file.Name.starts_with(name + '/'));
        });
    if (hasRows) newest = std::max(newest, QFileInfo(path).lastModified());
  }
  return newest.date();
}

Date FromQt(const QDate& date) {
  return {std::chrono::year(date.year()), std::chrono::month(static_cast<unsigned>(date.month())),
          std::chrono::day(static_cast<unsigned>(date.day()))};
}

QDate ToQt(const Date& date) {
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

/// "The FCC's AM Query list and antenna tables, newest dated row of 2 August 2026, 10980 stations"; where no
/// row has a date, that of the newest file.
std::string StationsLine(const QStringList& paths, const Readings& readings, const ImportReport& report) {
  std::string line = "The FCC's ";
  if (readings.HasAmq) line += "AM Query list";
  if (readings.HasAmq && readings.HasTables) line += " and ";
  if (readings.HasTables) line += "antenna tables";
  const std::optional<Date>& row = readings.Dates.Newest();
  line += row ? ", newest dated row of " : ", files of ";
  line += QLocale::c().toString(row ? ToQt(*row) : NewestFile(paths, report), "d MMMM yyyy").toStdString();
  return line + ", " + std::to_string(report.Stations) + " stations";
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

/// Why the stations must not take the place of those in the folder.
std::optional<Error> Refusal(const ImportRequest& request, const ImportOutcome& outcome) {
  const int before = outcome.StationsBefore;
  const int after = outcome.Report.Stations;
  if (after == 0) return Unchanged(Error::Kind::Malformed, "no station was found");
  if (request.DryRun || after >= before - after) return std::nullopt;
  if (request.LeaveFewer && request.LeaveFewer(before, after)) return std::nullopt;
  return Unchanged(Error::Kind::Refused, std::to_string(after) + " stations would be left where there are " +
                                             std::to_string(before) + ", less than half");
}

ImportOutcome Import(const ImportRequest& request, const DataFolder& folder, const ImportProgress& progress) {
  ImportOutcome outcome;
  Readings readings(FromQt(QDate::currentDate()));
  bool cancelled = false;
  {
    std::vector<std::unique_ptr<Intake>> intakes;
    std::vector<SourceFile> files;
    outcome.Failure = OpenAll(request.Files, intakes, files, outcome.Report);
    const std::optional<Error> failure =
        ReadSourceFiles(files, request.Options, readings, outcome.Report, [&](double share, auto name) {
          cancelled = cancelled || (progress && !progress(kReadingShare * share, name));
          return !cancelled;
        });
    if (!outcome.Failure) outcome.Failure = failure;
  }
  if (cancelled) {
    outcome = {};  // its counts would not add up
    outcome.Failure = kCancelled;
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
  outcome.StationsBefore = StationsIn(folder);
  outcome.StationsLine = StationsLine(request.Files, readings, outcome.Report);
  if (!outcome.Failure) outcome.Failure = Refusal(request, outcome);
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
    outcome.Failure = Unchanged(Error::Kind::Refused, "there is not enough memory for so long files");
    return outcome;
  }
}

std::string OutcomeText(const ImportOutcome& outcome, std::size_t mostChanges) {
  if (outcome.Report.Files().empty() && outcome.Report.Refusals().empty()) return {};
  std::string text = ReportText(outcome.Report);
  if (outcome.StationsBefore > 0) text += std::to_string(outcome.StationsBefore) + " stations before\n";
  if (outcome.Failure) return text;
  return text + "\nChanges\n" + ChangesText(outcome.Changes, mostChanges);
}

}  // namespace kestrel
