#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Json.h"
#include "cli/Options.h"
#include "cli/RankingOptions.h"
#include "cli/RankingOutput.h"

namespace kestrel::cli {
namespace {

/// The question and its answer.
struct Answer {
  float Frequency;
  Moment At;
  double Ground;
  HoursRule Rule;
  const ChannelRanking& Channel;
  const Ranking& Found;
};

std::string Json(const Answer& answer) {
  JsonWriter json;
  json.BeginObject().Key("frequency").Number(answer.Frequency);
  json.Key("utc").Text(MomentText(answer.At));
  json.Key("sigma_ms").Number(static_cast<float>(answer.Ground)).Key("rule").Text(NameOf(answer.Rule));
  json.Key("rows").BeginArray();
  for (const RankedRecord& row : answer.Found.Rows) {
    json.BeginObject();
    WriteRanked(json, {answer.Channel.Records()[row.Record], row});
    json.EndObject();
  }
  json.EndArray().Key("silent").BeginArray();
  for (const SilentStation& silent : answer.Found.Silent) {
    const RecordAtHome& record = answer.Channel.Records()[silent.Record];
    json.BeginObject().Key("call").Text(record.CallSign).Key("city").Text(record.City);
    json.Key("reason").Text(silent.Reason).EndObject();
  }
  return json.EndArray().EndObject().Finish();
}

std::string Csv(const Answer& answer) {
  CsvWriter csv = RankedCsv();
  for (const RankedRecord& row : answer.Found.Rows)
    AddRanked(csv, answer.Frequency, {answer.Channel.Records()[row.Record], row});
  for (const SilentStation& silent : answer.Found.Silent)
    AddSilent(csv, answer.Frequency, answer.Channel.Records()[silent.Record], silent.Reason);
  return csv.Finish();
}

std::string ForPeople(const Answer& answer) {
  std::string text = NumberWithZero(answer.Frequency) + " kHz, " + MomentText(answer.At) + ", ground " +
                     NumberWithZero(static_cast<float>(answer.Ground)) + " mS/m; " +
                     std::to_string(answer.Found.Rows.size()) + " on the air\n\n";
  Table onAir = RankedTable({});
  for (const RankedRecord& row : answer.Found.Rows)
    AddRanked(onAir, {}, {answer.Channel.Records()[row.Record], row});
  text += onAir.Text();
  if (answer.Found.Silent.empty()) return text;
  Table silentStations({{"Silent"}, {"City"}, {"State"}, {"Reason"}});
  for (const SilentStation& silent : answer.Found.Silent) {
    const RecordAtHome& record = answer.Channel.Records()[silent.Record];
    silentStations.AddRow({record.CallSign, record.City, record.State, std::string(silent.Reason)});
  }
  return text + '\n' + silentStations.Text();
}

void TellWho(const Request& request) {
  const auto qt = StartQt(QtUse::Files);
  const SessionState state = SessionFor(request);
  const QByteArray bytes = ReadChannel(DataFor(request), state.CurrentFrequency);
  ChannelRanking channel(state.CurrentFrequency, state.Home(), GroundFor(request));
  Say(channel.AddFile(StationFileName(state.CurrentFrequency).toStdString(),
                      {bytes.constData(), static_cast<std::size_t>(bytes.size())}));
  const RankingChoices choices = ChoicesFor(request);
  const Moment moment = MomentFor(request, state.Home());
  const Ranking ranking = channel.Rank(moment, choices);
  for (const std::string& call : ranking.NotOnChannel)
    Say("--strike " + call + ": no station of " + NumberWithZero(state.CurrentFrequency) +
        " kHz has this call");
  const Answer answer = {state.CurrentFrequency, moment, GroundFor(request), choices.Rule, channel, ranking};
  Print(request.Json ? Json(answer) : request.Csv ? Csv(answer) : ForPeople(answer));
}

}  // namespace

void AddWhoCommand(CLI::App& app, Request& request) {
  CLI::App& command =
      *app.add_subcommand("who", "Tell who it can be: a channel's stations by their fields at home");
  AddFrequency(command, request);
  AddHome(command, request);
  AddTime(command, request);
  AddRankingChoices(command, request);
  AddJsonOrCsv(command, request);
  command.callback([&request] { TellWho(request); });
}

}  // namespace kestrel::cli
