#include <algorithm>

#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Json.h"
#include "cli/Options.h"
#include "cli/RankingOptions.h"
#include "cli/RankingOutput.h"
#include "field/BandRanking.h"

namespace kestrel::cli {
namespace {

/// The strongest of one channel.
struct Strongest {
  float Frequency;
  std::vector<RankedStation> Stations;
};

std::string Json(const std::vector<Strongest>& channels) {
  JsonWriter json;
  json.BeginArray();
  for (const auto& [frequency, stations] : channels) {
    json.BeginObject().Key("frequency").Number(frequency).Key("rows").BeginArray();
    for (const RankedStation& station : stations) {
      json.BeginObject();
      WriteRanked(json, station);
      json.EndObject();
    }
    json.EndArray().EndObject();
  }
  return json.EndArray().Finish();
}

std::string Csv(const std::vector<Strongest>& channels) {
  CsvWriter csv = RankedCsv();
  for (const auto& [frequency, stations] : channels)
    for (const RankedStation& station : stations) AddRanked(csv, frequency, station);
  return csv.Finish();
}

std::string ForPeople(const std::vector<Strongest>& channels) {
  Table table = RankedTable({{"kHz", Align::Right}});
  for (const auto& [frequency, stations] : channels)
    for (const RankedStation& station : stations) AddRanked(table, {NumberWithZero(frequency)}, station);
  return table.Text();
}

/// Struck calls that are on none of the channels.
std::vector<std::string> NowhereFound(const std::vector<Ranking>& rankings) {
  std::vector<std::string> calls;
  if (!rankings.empty()) calls = rankings.front().NotOnChannel;
  for (const Ranking& ranking : rankings)
    std::erase_if(calls, [&](const std::string& call) {
      return std::find(ranking.NotOnChannel.begin(), ranking.NotOnChannel.end(), call) ==
             ranking.NotOnChannel.end();
    });
  return calls;
}

void TellBand(const Request& request) {
  const auto qt = StartQt(QtUse::Files);
  const SessionState state = SessionFor(request);
  const DataFolder folder = DataFor(request);
  BandRanking band(folder, state.Home(), GroundFor(request));
  Say(band.Notes());
  if (band.Channels().empty())
    throw Failure(folder.Path().toStdString() +
                  ": no station file was read; name another folder with --data");
  const std::vector<Ranking> rankings = band.Rank(MomentFor(request, state.Home()), ChoicesFor(request));
  for (const std::string& call : NowhereFound(rankings))
    Say("--strike " + call + ": no station of the band has this call");

  const auto top = static_cast<std::size_t>(request.Top.value_or(1));
  std::vector<Strongest> strongest;
  for (std::size_t i = 0; i < rankings.size(); ++i) {
    const BandRanking::Channel& channel = band.Channels()[i];
    strongest.push_back({channel.Frequency, {}});
    for (const RankedRecord& row : rankings[i].Rows)
      if (row.Chance != Likelihood::Struck && strongest.back().Stations.size() < top)
        strongest.back().Stations.push_back({channel.Records.Records()[row.Record], row});
  }
  Print(request.Json ? Json(strongest) : request.Csv ? Csv(strongest) : ForPeople(strongest));
}

}  // namespace

void AddBandCommand(CLI::App& app, Request& request) {
  CLI::App& command = *app.add_subcommand("band", "Tell the strongest stations of every channel at home");
  AddHome(command, request);
  AddTime(command, request);
  AddNumber(command, "--top", {1, 10000}, request.Top, "how many of each channel [1]");
  AddRankingChoices(command, request);
  AddJsonOrCsv(command, request);
  command.callback([&request] { TellBand(request); });
}

}  // namespace kestrel::cli
