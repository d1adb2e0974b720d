#include "data/SwapJournal.h"

#include "core/Lines.h"

namespace kestrel {
namespace {

constexpr std::string_view kMoved = "moved";
constexpr std::string_view kMoving = "moving";
constexpr std::string_view kSource = "from ";
constexpr std::string_view kOld = "old ";
constexpr std::string_view kNew = "new ";
constexpr std::string_view kEnd = "end";

/// Whether it names an entry of the folder itself, and not the folder or one beside or above it.
bool IsPlainName(const QString& name) {
  return !name.isEmpty() && name != "." && name != ".." && !name.contains('/') && !name.contains('\\');
}

}  // namespace

std::string JournalText(const SwapJournal& journal) {
  std::string text(journal.Moved ? kMoved : kMoving);
  text += '\n' + std::string(kSource) + journal.Source.toStdString() + '\n';
  for (const QString& name : journal.OldFiles) text += std::string(kOld) + name.toStdString() + '\n';
  for (const QString& name : journal.NewFiles) text += std::string(kNew) + name.toStdString() + '\n';
  return text + std::string(kEnd) + '\n';
}

std::optional<SwapJournal> ReadJournal(std::string_view text) {
  SwapJournal journal;
  LineReader lines(text);
  const auto first = lines.Next();
  if (!first || (*first != kMoved && *first != kMoving)) return std::nullopt;
  journal.Moved = *first == kMoved;
  while (const auto line = lines.Next()) {
    if (*line == kEnd) return journal.Source.isEmpty() ? std::nullopt : std::optional(journal);
    const std::string_view key = line->substr(0, line->find(' ') + 1);
    const QString name =
        QString::fromUtf8(line->data() + key.size(), static_cast<qsizetype>(line->size() - key.size()));
    if (!IsPlainName(name)) return std::nullopt;
    if (key == kSource)
      journal.Source = name;
    else if (key == kOld)
      journal.OldFiles << name;
    else if (key == kNew)
      journal.NewFiles << name;
    else
      return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace kestrel
