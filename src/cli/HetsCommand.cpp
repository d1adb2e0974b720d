#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Csv.h"
#include "cli/Json.h"
#include "cli/Options.h"
#include "core/Heterodynes.h"

namespace kestrel::cli {
namespace {

/// The lines that the window shows; a label without text shows none.
std::vector<std::string> Lines(const Heterodynes& heterodynes) {
  const HeterodyneTexts texts = TextsOf(heterodynes);
  std::vector<std::string> lines;
  for (const std::string& line : {texts.Current, texts.Below, texts.Above})
    if (!line.empty()) lines.push_back(line);
  return lines;
}

void WriteHeterodyne(JsonWriter& json, const std::optional<Heterodyne>& heterodyne) {
  if (!heterodyne) {
    json.Null();
    return;
  }
  json.BeginObject();
  json.Key("beat_khz").Number(heterodyne->BeatKHz).Key("frequency").Whole(heterodyne->GridChannel);
  json.EndObject();
}

std::string Json(const Heterodynes& heterodynes) {
  JsonWriter json;
  json.BeginObject().Key("frequency").Number(heterodynes.Frequency);
  json.Key("below");
  WriteHeterodyne(json, heterodynes.Below);
  json.Key("above");
  WriteHeterodyne(json, heterodynes.Above);
  json.Key("on_grid").Truth(heterodynes.OnGrid);
  json.Key("lines").BeginArray();
  for (const std::string& line : Lines(heterodynes)) json.Text(line);
  return json.EndArray().EndObject().Finish();
}

std::string Csv(const Heterodynes& heterodynes) {
  CsvWriter csv(
      {"frequency", "below_beat_khz", "below_frequency", "above_beat_khz", "above_frequency", "on_grid"});
  const auto add = [&](std::string_view beat, std::string_view frequency,
                       const std::optional<Heterodyne>& heterodyne) {
    csv.Key(beat);
    heterodyne ? csv.Number(heterodyne->BeatKHz) : csv.Null();
    csv.Key(frequency);
    heterodyne ? csv.Whole(heterodyne->GridChannel) : csv.Null();
  };
  csv.BeginObject().Key("frequency").Number(heterodynes.Frequency);
  add("below_beat_khz", "below_frequency", heterodynes.Below);
  add("above_beat_khz", "above_frequency", heterodynes.Above);
  csv.Key("on_grid").Truth(heterodynes.OnGrid).EndObject();
  return csv.Finish();
}

void ShowHeterodynes(const Request& request) {
  const Heterodynes heterodynes = FindHeterodynes(SessionFor(request).CurrentFrequency);
  if (request.Json) return Print(Json(heterodynes));
  if (request.Csv) return Print(Csv(heterodynes));
  std::string text;
  for (const std::string& line : Lines(heterodynes)) text += line + '\n';
  Print(text);
}

}  // namespace

void AddHetsCommand(CLI::App& app, Request& request) {
  CLI::App& command =
      *app.add_subcommand("hets", "Tell the beat notes that stations of the 9 kHz grid make on a channel");
  AddFrequency(command, request);
  AddJsonOrCsv(command, request);
  command.callback([&request] { ShowHeterodynes(request); });
}

}  // namespace kestrel::cli
