#include "cli/Request.h"

#include <QGuiApplication>

#include "cli/Console.h"
#include "core/Band.h"
#include "core/Numbers.h"
#include "core/SessionFile.h"
#include "data/DataSwap.h"
#include "data/FileIo.h"
#include "data/StationFile.h"

namespace kestrel::cli {
namespace {

void ReadSessionFile(const std::string& path, MissingSession missing, SessionState& state) {
  const Result<QByteArray> bytes = ReadFile(QString::fromStdString(path), LargestSessionFile);
  if (bytes)
    ReadSession(std::string_view(bytes->constData(), static_cast<std::size_t>(bytes->size())), state);
  else if (missing == MissingSession::IsFirstStart && bytes.error().kind == Error::Kind::NotFound)
    ReadSession(std::nullopt, state);
  else
    Fail(path, bytes.error(), "name a last-session file that can be read, or leave it out for a first start");
}

template <typename Value, typename Given>
void Override(Value& value, const std::optional<Given>& given) {
  if (given) value = *given;
}

}  // namespace

SessionState SessionFor(const Request& request, MissingSession missing) {
  SessionState state;
  if (request.SessionFile) ReadSessionFile(*request.SessionFile, missing, state);
  Override(state.CurrentFrequency, request.Frequency);
  if (request.Home) {
    state.HomeName.clear();  // it belongs to the place of the file
    state.HomeLatitude = request.Home->Latitude;
    state.HomeLongitude = request.Home->Longitude;
  }
  Override(state.HomeName, request.HomeName);
  Override(state.ScaleFactor, request.Scale);
  Override(state.PatternSize, request.PatternSize);
  Override(state.AspectRatio, request.Aspect);
  return state;
}

DataFolder DataFor(const Request& request) {
  const Result<DataFolder> folder = LocateDataFolder(QString::fromStdString(request.Data.value_or("")));
  if (!folder)
    Fail(folder.error().file, folder.error(), "name the folder that holds the station files with --data");
  if (const Result<Done> recovered = RecoverImport(*folder); !recovered)
    Fail(recovered.error().file, recovered.error(),
         "an import into " + folder->Path().toStdString() + " was interrupted and cannot be finished");
  return *folder;
}

std::string StationsLineOf(const DataFolder& folder) {
  const Result<std::string> line = folder.ReadStationsLine();
  if (line) return *line;
  Say(line.error().Message());
  return {};
}

QByteArray ReadChannel(const DataFolder& folder, float frequency) {
  if (!IsInBand(frequency))
    throw Failure("the session's channel is " + NumberText(frequency) + " kHz, and station files run from " +
                  NumberText(LowestChannel) + " to " + NumberText(HighestChannel) +
                  "; choose one with --frequency");
  const QString name = StationFileName(frequency);
  Result<QByteArray> bytes = folder.Read(name);
  if (!bytes)
    Fail(folder.Path().toStdString() + '/' + name.toStdString(), bytes.error(),
         "choose another channel with --frequency or another folder with --data");
  return std::move(*bytes);
}

std::unique_ptr<QCoreApplication> StartQt(QtUse use) {
  static int count = 1;
  static char name[] = "kestrel-cli";
  static char* arguments[] = {name, nullptr};
  // Scales and themes of a desktop session must not reach a picture, nor remarks of the platform a script.
  for (const char* variable : {"QT_QPA_PLATFORMTHEME", "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
                               "QT_ENABLE_HIGHDPI_SCALING", "QT_FONT_DPI"})
    qunsetenv(variable);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  if (use == QtUse::Pictures) return std::make_unique<QGuiApplication>(count, arguments);
  return std::make_unique<QCoreApplication>(count, arguments);
}

}  // namespace kestrel::cli
