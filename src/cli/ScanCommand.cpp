#include <unistd.h>

#include <cstdio>

#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Options.h"
#include "cli/StationList.h"
#include "core/Band.h"
#include "core/Numbers.h"
#include "draw/Fonts.h"
#include "draw/Picture.h"
#include "map/BandScan.h"
#include "map/MainMap.h"
#include "map/Rings.h"

namespace kestrel::cli {
namespace {

/// A line that names the channel being drawn, on standard error when that is a terminal.
class ProgressLine {
 public:
  void Show(float channel) const {
    if (shown_) Write("\rkestrel-cli: scanning " + NumberText(channel) + " kHz ");
  }
  ~ProgressLine() {
    if (shown_) Write("\r\x1B[K");
  }

 private:
  static void Write(const std::string& text) { std::fwrite(text.data(), 1, text.size(), stderr); }

  const bool shown_ = isatty(STDERR_FILENO) != 0;
};

void DrawBand(const DataFolder& folder, const MapProjection& projection, Canvas& canvas) {
  std::vector<std::string> notes;
  int channels = 0;
  {
    const ProgressLine progress;
    for (BandScan scan(folder, projection); !scan.AtEnd();) {
      progress.Show(scan.Channel());
      const Result<Done> drawn = scan.DrawNext(canvas);
      if (drawn)
        ++channels;
      else if (drawn.error().kind != Error::Kind::NotFound)
        notes.push_back(drawn.error().Message());
    }
  }
  Say(notes);
  if (channels == 0)
    Say(folder.Path().toStdString() + ": no station file was drawn; name another folder with --data");
}

/// The stations of all channels.
void ListBand(const Request& request) {
  const auto qt = StartQt(QtUse::Files);
  const SessionState state = SessionFor(request);
  const DataFolder folder = DataFor(request);
  CsvWriter csv = StationCsv();
  int channels = 0;
  for (float channel = LowestChannel; channel <= HighestChannel; channel += ChannelStep) {
    const Result<QByteArray> bytes = folder.Read(StationFileName(channel));
    if (bytes) {
      AddStations(csv, channel, ListedStations(*bytes, channel, state));
      ++channels;
    } else if (bytes.error().kind != Error::Kind::NotFound) {
      Say(bytes.error().Message());
    }
  }
  if (channels == 0)
    Say(folder.Path().toStdString() + ": no station file was read; name another folder with --data");
  Print(csv.Finish());
}

void Scan(const Request& request) {
  if (request.Csv) return ListBand(request);
  if (request.Output.empty()) throw WrongUse("-o is required; kestrel-cli scan --help tells more");
  const auto qt = StartQt(QtUse::Pictures);
  const SessionState state = SessionFor(request);
  const DataFolder folder = DataFor(request);
  const MapProjection projection(state.Home(), state.ScaleFactor);

  const PlatformTextMeasure measure;
  DisplayList drawing(measure);
  Say(DrawMapGround(drawing, folder, state));
  DrawBand(folder, projection, drawing);
  DrawScaleBar(drawing, state);
  const Result<Done> written =
      WritePicture(drawing, request.Size, QString::fromStdString(request.Output), request.Look);
  if (!written) Fail(request.Output, written.error(), "the picture was not written");
}

}  // namespace

void AddScanCommand(CLI::App& app, Request& request) {
  CLI::App& command = *app.add_subcommand("scan", "Draw where the stations of all channels stand");
  AddHome(command, request);
  AddScale(command, request);
  CLI::Option* const output = AddPicture(command, request)->required(false);
  AddCsv(command, request)
      ->excludes(output)
      ->description("the stations of all channels in place of the picture");
  command.callback([&request] { Scan(request); });
}

}  // namespace kestrel::cli
