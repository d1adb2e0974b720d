#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>

#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Json.h"
#include "cli/Options.h"
#include "core/Text.h"
#include "data/DataSwap.h"
#include "data/FileIo.h"
#include "import/Countries.h"
#include "import/Import.h"

namespace kestrel::cli {
namespace {

/// What `import` alone takes.
struct ImportArguments {
  std::vector<std::string> files;
  bool dryRun = false;
  bool undo = false;
  bool fewer = false;
  std::optional<std::string> report;
  ImportOptions options;
};

/// A bar of 30 characters and what is being done, on standard error when that is a terminal.
class ProgressBar {
 public:
  bool Show(double done, std::string_view what) {
    constexpr std::size_t kLength = 30;
    const auto filled = static_cast<std::size_t>(done * kLength);
    const std::string line = "\r\x1B[K[" + std::string(filled, '#') + std::string(kLength - filled, ' ') +
                             "] " + std::string(Columns(what, 1, 45));
    if (shown_ && line != last_) Write(line);
    last_ = line;
    return true;
  }
  ~ProgressBar() {
    if (shown_) Write("\r\x1B[K");
  }

 private:
  static void Write(const std::string& text) { std::fwrite(text.data(), 1, text.size(), stderr); }

  const bool shown_ = isatty(STDERR_FILENO) != 0;
  std::string last_;
};

void WriteFindings(JsonWriter& json, const ImportReport& report, std::size_t first, std::size_t last) {
  json.BeginArray();
  for (std::size_t i = first; i <= last; ++i) {
    const ImportReport::Count& count = report.Of(static_cast<Finding>(i));
    if (count.Rows == 0) continue;
    json.BeginObject()
        .Key("reason")
        .Text(FindingTitle(static_cast<Finding>(i)))
        .Key("count")
        .Whole(count.Rows);
    json.Key("examples").BeginArray();
    for (const std::string& example : count.Examples) json.Text(example);
    json.EndArray().EndObject();
  }
  json.EndArray();
}

void WriteChange(JsonWriter& json, const Change& change) {
  json.BeginObject().Key("frequency").Whole(change.Channel).Key("call").Text(change.CallSign());
  json.Key("hours").Text(change.Hours()).Key("place").Text(change.Place());
  switch (change.Kind) {
    case ChangeKind::Moved:
      json.Key("distance_km").Number(change.After);
      break;
    case ChangeKind::Power:
      json.Key("power_kw_before").Number(change.Before).Key("power_kw").Number(change.After);
      break;
    case ChangeKind::Pattern:
      json.Key("towers_before")
          .Whole(static_cast<int>(change.Before))
          .Key("towers")
          .Whole(static_cast<int>(change.After));
      break;
    case ChangeKind::CallSign:
      json.Key("call_before").Text(change.FormerCallSign());
      break;
    default:
      break;
  }
  json.EndObject();
}

void WriteChanges(JsonWriter& json, const ChangeList& changes) {
  json.BeginObject();
  for (const ChangeKind kind : {ChangeKind::New, ChangeKind::Gone, ChangeKind::Moved, ChangeKind::Power,
                                ChangeKind::Pattern, ChangeKind::CallSign}) {
    std::string key(ChangeName(kind));
    std::replace(key.begin(), key.end(), ' ', '_');
    json.Key(key).BeginArray();
    for (const Change& change : changes)
      if (change.Kind == kind) WriteChange(json, change);
    json.EndArray();
  }
  json.EndObject();
}

std::string Json(const ImportOutcome& outcome, bool dryRun) {
  const ImportReport& report = outcome.Report;
  const ImportReport::File total = report.Total();
  JsonWriter json;
  json.BeginObject();
  json.Key("written").Truth(!outcome.Failure && !dryRun).Key("source").Text(outcome.StationsLine);
  json.Key("stations").Whole(report.Stations).Key("records").Whole(report.Records);
  json.Key("stations_before").Whole(outcome.StationsBefore);
  json.Key("rows").Whole(total.Rows).Key("taken").Whole(total.Taken).Key("left_out").Whole(total.LeftOut);
  json.Key("files").BeginArray();
  for (const ImportReport::File& file : report.Files()) {
    json.BeginObject().Key("file").Text(file.Name).Key("content").Text(file.Content);
    json.Key("rows")
        .Whole(file.Rows)
        .Key("taken")
        .Whole(file.Taken)
        .Key("left_out")
        .Whole(file.LeftOut)
        .EndObject();
  }
  json.EndArray().Key("refused").BeginArray();
  for (const ImportReport::Refusal& refusal : report.Refusals())
    json.BeginObject().Key("file").Text(refusal.File).Key("reason").Text(refusal.Reason).EndObject();
  json.EndArray();
  constexpr auto kLastLeftOut = static_cast<std::size_t>(Finding::LastLeftOut);
  WriteFindings(json.Key("reasons"), report, 0, kLastLeftOut);
  WriteFindings(json.Key("remarks"), report, kLastLeftOut + 1, FindingCount - 1);
  WriteChanges(json.Key("changes"), outcome.Changes);
  return json.EndObject().Finish();
}

void WriteReport(const std::string& path, const std::string& text, bool imported) {
  const Result<Done> written = WriteFile(QString::fromStdString(path), text);
  if (!written)
    Fail(path, written.error(),
         imported ? "the stations were imported, the report was not written" : "the report was not written");
}

void Import(const Request& request, const ImportArguments& arguments) {
  const auto qt = StartQt(QtUse::Files);
  const DataFolder folder = DataFor(request);
  ImportRequest import{{}, arguments.options, arguments.dryRun};
  for (const std::string& file : arguments.files) import.Files << QString::fromStdString(file);

  bool tooFew = false;
  import.LeaveFewer = [&](int, int) { tooFew = !arguments.fewer;
  return arguments.fewer;
};
const ImportOutcome outcome = [&] {
  ProgressBar bar;
  return RunImport(import, folder, [&](double done, std::string_view what) { return bar.Show(done, what); });
}();
constexpr std::size_t kShownChanges = 20;
const bool imported = !outcome.Failure && !arguments.dryRun;
Print(request.Json ? Json(outcome, arguments.dryRun) : OutcomeText(outcome, kShownChanges));
if (arguments.report)
  WriteReport(*arguments.report, request.Json ? Json(outcome, arguments.dryRun) : OutcomeText(outcome, 0),
              imported);
if (outcome.Failure)
  throw Failure(outcome.Failure->Message() +
                (tooFew ? "; to import all the same, add --fewer" : "; nothing was written"));
}  // namespace

void Undo(const Request& request) {
  const auto qt = StartQt(QtUse::Files);
  const DataFolder folder = DataFor(request);
  if (const Result<Done> undone = UndoImport(folder); !undone) throw Failure(undone.error().Message());
  const std::string line = StationsLineOf(folder);
  if (!request.Json)
    return Print("The station files of before are back: " + (line.empty() ? "none" : line) + '\n');
  JsonWriter json;
  Print(json.BeginObject().Key("undone").Truth(true).Key("source").Text(line).EndObject().Finish());
}

std::vector<std::string> WantedCountries(const std::string& list) {
  const Result<std::vector<std::string>> codes = ReadCountries(list);
  if (!codes) throw WrongUse("--countries " + list + ": " + codes.error().text);
  if (codes->empty()) throw WrongUse("--countries: give codes, as in US,CA,MX");
  return *codes;
}

void Choose(const Request& request, const ImportArguments& arguments) {
  if (arguments.undo) {
    const ImportOptions& options = arguments.options;
    if (!arguments.files.empty() || arguments.dryRun || arguments.fewer || arguments.report ||
        options.IncludeSilent || options.IncludePermits || !options.Countries.empty())
      throw WrongUse("import --undo: takes no files and no other options than --data and --json");
    return Undo(request);
  }
  if (arguments.files.empty()) throw WrongUse("import: name the files to import, or --undo");
  Import(request, arguments);
}

}  // namespace kestrel::cli

void AddImportCommand(CLI::App& app, Request& request) {
  CLI::App& command = *app.add_subcommand("import", "Make the station files from the FCC's files");
  const auto arguments = std::make_shared<ImportArguments>();
  command
      .add_option("files", arguments->files,
                  "AM Query lists and antenna tables, plain or zipped; the last one counts most")
      ->type_name("FILE");
  command.add_flag("--dry-run", arguments->dryRun, "report and compare, write nothing");
  command.add_flag("--undo", arguments->undo,
                   "bring back what the last import replaced; once more, the import");
  command.add_flag("--fewer", arguments->fewer, "even where fewer than half of the stations would be left");
  AddFileName(command, "--report", arguments->report, "write the whole report there too");
  command.add_flag("--include-silent", arguments->options.IncludeSilent,
                   "licensed stations that are silent too");
  command.add_flag("--include-permits", arguments->options.IncludePermits,
                   "US stations not yet licensed too");
  command
      .add_option_function<std::string>(
          "--countries",
          [arguments](const std::string& list) { arguments->options.Countries = WantedCountries(list); },
          "only these, by the FCC's codes, as in US,CA,MX")
      ->type_name("LIST");
  AddJson(command, request);
  command.callback([&request, arguments] { Choose(request, *arguments); });
}

}  // namespace kestrel::cli
