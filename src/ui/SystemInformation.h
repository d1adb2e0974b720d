#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "ui/ProgramStart.h"

// Where the system's own information tool is found.

namespace kestrel {

/// The tool of the system that the program runs on.
std::optional<ProgramCall> FindSystemInformation();

/// The first of the desktops' usual tools that has a desktop entry in one of `entryFolders`, the program of
/// that entry being there; else the first that lies in one of `programFolders`.
std::optional<ProgramCall> FindDesktopTool(const QStringList& entryFolders,
                                           const QStringList& programFolders);

/// Reads a text value below HKEY_LOCAL_MACHINE; empty when there is none.
using RegistryText = std::function<QString(const QString& key, const QString& value)>;

/// The tool as the registry of Windows names it: its path, else its folder, which counts only when the
/// program is in it.
std::optional<ProgramCall> FindRegisteredTool(const RegistryText& registry,
                                              const std::function<bool(const QString& path)>& fileExists);

}  // namespace kestrel
