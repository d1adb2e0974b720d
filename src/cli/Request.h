#pragma once

#include <QCoreApplication>
#include <QSize>
#include <memory>
#include <optional>
#include <string>

#include "core/Distance.h"
#include "core/SessionState.h"
#include "data/DataFolder.h"
#include "field/Ranking.h"
#include "map/MapLook.h"

namespace kestrel::cli {

/// What the command line gave. An option that was not given is nothing.
struct Request {
  std::optional<std::string> Data;
  std::optional<std::string> SessionFile;
  std::optional<float> Frequency;
  std::optional<Position> Home;
  std::optional<std::string> HomeName;
  std::optional<float> Scale;
  std::optional<float> PatternSize;
  std::optional<float> Aspect;
  QSize Size = {1600, 1200};
  MapLook Look{.ScaleBar = true};
  std::string Output;
  bool Json = false;
  bool Csv = false;
  std::optional<std::string> Time;
  std::optional<float> Ground;
  std::optional<float> Need;
  std::optional<float> Top;
  RankingChoices Choices;  ///< but for Need
};

/// What a last-session file that was named and is missing means.
enum class MissingSession { Fails, IsFirstStart };

/// The session that a command starts from: the last-session file's or a first start's, with the options given
/// in place of its values. Throws Failure when the file cannot be read.
SessionState SessionFor(const Request& request, MissingSession missing = MissingSession::Fails);

/// The folder to read from, by the same rule as the program's; an interrupted import into it is finished or
/// taken back. Throws Failure. REQUIRES: the platform is started.
DataFolder DataFor(const Request& request);

/// The line of "Stations.txt"; when it cannot be read none, and standard error says why.
std::string StationsLineOf(const DataFolder& folder);

/// The bytes of the channel's station file. Throws Failure when there are none.
QByteArray ReadChannel(const DataFolder& folder, float frequency);

/// What a command needs of Qt. Fonts and pictures take longer to start.
enum class QtUse { Files, Pictures };

/// Starts Qt, without a display; it ends with what is returned.
[[nodiscard]] std::unique_ptr<QCoreApplication> StartQt(QtUse use);

}  // namespace kestrel::cli
