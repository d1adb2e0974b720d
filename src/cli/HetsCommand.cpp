#include "cli/Commands.h"
#include "cli/Console.h"
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

void ShowHeterodynes(const Request& request) {
  const Heterodynes heterodynes = FindHeterodynes(SessionFor(request).CurrentFrequency);
  if (request.Json) return Print(Json(heterodynes));
  std::string text;
  for (const std::string& line : Lines(heterodynes)) text += line + '\n';
  Print(text);
}

}  // namespace

void AddHetsCommand(CLI::App& app, Request& request) {
  CLI::App& command =
      *app.add_subcommand("hets", "Tell the beat notes that stations of the 9 kHz grid make on a channel");
  AddFrequency(command, request);
  AddJson(command, request);
  command.callback([&request] { ShowHeterodynes(request); });
}

}  // namespace kestrel::cli
