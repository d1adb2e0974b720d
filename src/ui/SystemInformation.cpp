#include "ui/SystemInformation.h"

#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <array>

#include "core/Lines.h"
#include "core/Text.h"
#include "data/FileIo.h"

namespace kestrel {
namespace {

/// A tool by the name of its desktop entry and by its program. Only entries may need arguments, which they
/// bring along.
struct KnownTool {
  const char* Entry;
  const char* Program;  ///< nullptr: the program alone would open something else
};

constexpr std::array kKnownTools = {
    KnownTool{"org.kde.kinfocenter.desktop", "kinfocenter"},
    KnownTool{"gnome-about-panel.desktop", nullptr},
    KnownTool{"gnome-system-panel.desktop", nullptr},
    KnownTool{"gnome-info-overview-panel.desktop", nullptr},
    KnownTool{"cinnamon-settings-info.desktop", nullptr},
    KnownTool{"hardinfo2.desktop", "hardinfo2"},
    KnownTool{"hardinfo.desktop", "hardinfo"},
    KnownTool{"mate-system-monitor.desktop", "mate-system-monitor"},
    KnownTool{"org.gnome.SystemMonitor.desktop", "gnome-system-monitor"},
    KnownTool{"org.kde.plasma-systemmonitor.desktop", "plasma-systemmonitor"},
    KnownTool{"xfce4-taskmanager.desktop", "xfce4-taskmanager"},
};

/// The command of a desktop entry without its field codes (%U and the like), which stand for files to open.
QString EntryCommand(std::string_view bytes) {
  bool inEntry = false;
  LineReader lines(bytes);
  while (const auto next = lines.Next()) {
    const std::string_view line = Trim(*next);
    if (line.starts_with('[')) inEntry = line == "[Desktop Entry]";
    const std::size_t equals = line.find('=');
    if (!inEntry || equals == std::string_view::npos || Trim(line.substr(0, equals)) != "Exec") continue;
    const std::string_view value = Trim(line.substr(equals + 1));
    return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
  }
  return {};
}

std::optional<ProgramCall> CallOfEntry(const QString& path, const QStringList& programFolders) {
  const Result<QByteArray> bytes = ReadFile(path);
  if (!bytes) return std::nullopt;
  QStringList words =
      QProcess::splitCommand(EntryCommand({bytes->constData(), static_cast<std::size_t>(bytes->size())}));
  words.removeIf([](const QString& word) { return word.size() == 2 && word[0] == '%' && word[1] != '%'; });
  if (words.isEmpty()) return std::nullopt;
  const QString program = QStandardPaths::findExecutable(words.takeFirst(), programFolders);
  if (program.isEmpty()) return std::nullopt;
  return ProgramCall{program, words.replaceInStrings("%%", "%")};
}

}  // namespace

std::optional<ProgramCall> FindDesktopTool(const QStringList& entryFolders,
                                           const QStringList& programFolders) {
  for (const KnownTool& tool : kKnownTools) {
    for (const QString& folder : entryFolders) {
      if (const auto call = CallOfEntry(folder + '/' + tool.Entry, programFolders)) return call;
    }
  }
  for (const KnownTool& tool : kKnownTools) {
    if (!tool.Program) continue;
    const QString program = QStandardPaths::findExecutable(tool.Program, programFolders);
    if (!program.isEmpty()) return ProgramCall{program, {}};
  }
  return std::nullopt;
}

std::optional<ProgramCall> FindRegisteredTool(const RegistryText& registry,
                                              const std::function<bool(const QString& path)>& fileExists) {
  QString path = registry("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH");
  if (path.isEmpty()) {
    const QString folder = registry("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO");
    if (!folder.isEmpty()) path = folder + "\\MSINFO32.EXE";
    if (!fileExists(path)) path.clear();
  }
  if (path.isEmpty()) return std::nullopt;
  return ProgramCall{path, {}};
}

std::optional<ProgramCall> FindSystemInformation() {
#ifdef Q_OS_WIN
  // Not tried on a Windows machine yet: only FindRegisteredTool is, with a registry made up for it.
  const RegistryText registry = [](const QString& key, const QString& value) {
    return QSettings("HKEY_LOCAL_MACHINE\\" + key, QSettings::NativeFormat).value(value).toString();
  };
  return FindRegisteredTool(registry, [](const QString& path) { return QFile::exists(path); });
#else
  const QStringList programFolders = qEnvironmentVariable("PATH").split(QLatin1Char(':'), Qt::SkipEmptyParts);
  return FindDesktopTool(QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation),
                         programFolders);
#endif
}

}  // namespace kestrel
