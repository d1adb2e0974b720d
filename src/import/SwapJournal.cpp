#include "import/SwapJournal.h"

#include "core/Lines.h"

namespace kestrel {
namespace {

constexpr std::string_view kMoved = "moved";
constexpr std::string_view kMoving = "moving";
constexpr std::string_view kSource = "from ";
constexpr std::string_view kOld = "old ";
constexpr std::string_view kNew = "new ";
constexpr std::string_view kEnd = "end";

}  // namespace

std::string JournalText(const SwapJournal& journal) {
  std::string text(journal.moved ? kMoved : kMoving);
  text += '\n' + std::string(kSource) + journal.source.toStdString() + '\n';
  for (const QString& name : journal.oldFiles) text += std::string(kOld) + name.toStdString() + '\n';
  for (const QString& name : journal.newFiles) text += std::string(kNew) + name.toStdString() + '\n';
  return text + std::string(kEnd) + '\n';
}

std::optional<SwapJournal> ReadJournal(std::string_view text) {
  SwapJournal journal;
  LineReader lines(text);
  const auto first = lines.Next();
  if (!first || (*first != kMoved && *first != kMoving)) return std::nullopt;
  journal.moved = *first == kMoved;
  const auto name = [](std::string_view line, std::string_view key) {
    return QString::fromUtf8(line.data() + key.size(), static_cast<qsizetype>(line.size() - key.size()));
  };
  while (const auto line = lines.Next()) {
    if (line->find('/') != std::string_view::npos || line->find('\\') != std::string_view::npos)
      return std::nullopt;
    if (*line == kEnd) return journal.source.isEmpty() ? std::nullopt : std::optional(journal);
    if (line->starts_with(kSource))
      journal.source = name(*line, kSource);
    else if (line->starts_with(kOld))
      journal.oldFiles << name(*line, kOld);
    else if (line->starts_with(kNew))
      journal.newFiles << name(*line, kNew);
    else
      return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace kestrel
