#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string>
#include <string_view>

namespace kestrel {

/// How far the exchange of two sets of files has come, and what it is to become.
struct SwapJournal {
  bool Moved = false;    ///< every file is in its place; only clearing up is left
  QString Source;        ///< the folder, beside the files, that the new set comes from
  QStringList OldFiles;  ///< the files to be replaced, by the names they have
  QStringList NewFiles;  ///< the files to be put in
};

/// A line for each value; the last one says that the text is whole.
std::string JournalText(const SwapJournal& journal);

/// Nothing when the text is not whole or names anything but an entry of its folder.
std::optional<SwapJournal> ReadJournal(std::string_view text);

}  // namespace kestrel
