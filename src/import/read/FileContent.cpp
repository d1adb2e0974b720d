#include "import/read/FileContent.h"

#include <algorithm>
#include <vector>

#include "import/read/AmqList.h"
#include "import/read/RowFields.h"

namespace kestrel {
namespace {

Error Foreign(std::string text) {
  return {Error::Kind::Malformed, "", 0, std::move(text)};
}

/// What a file is that cannot be one of ours, by its first bytes; empty when that is not plain.
std::string_view ForeignContent(std::string_view head) {
  if (head.empty()) return "is empty";
  if (head.find_first_not_of(std::string_view("\0 \r\n", 4)) == std::string_view::npos)
    return "holds nothing but blanks or zeros";
  if (head.starts_with("PK\x03\x04")) return "is a zip inside a zip; unpack the outer one first";
  if (head.starts_with("\x1F\x8B")) return "is packed by gzip; unpack it first";
  if (head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF")) return "is UTF-16 text; save it as UTF-8";
  return {};
}

struct FirstLines {
  bool amq = false;
  std::size_t barFields = 0;  // of the first line that begins with a bar
};

FirstLines LookForAmq(std::string_view head) {
  FirstLines found;
  std::vector<std::string_view> fields;
  for (std::size_t end = 0; !head.empty() && !found.amq; head.remove_prefix(end)) {
    end = std::min(head.find('\n'), head.size());
    std::string_view line = head.substr(0, end);
    end = std::min(end + 1, head.size());
    if (!line.starts_with('|')) continue;
    if (line.ends_with('\r')) line.remove_suffix(1);
    found.amq = IsAmqRow(line);
    SplitAtBars(line, fields);
    if (found.barFields == 0) found.barFields = fields.size() - 1;
  }
  return found;
}

}  // namespace

Result<FileContent> RecogniseFile(std::string_view head) {
  if (const std::string_view foreign = ForeignContent(head); !foreign.empty())
    return Foreign(std::string(foreign));
  const FirstLines first = LookForAmq(head);
  if (first.amq) return FileContent{"AM Query list", std::nullopt};
  Result<TableLayout> layout = RecogniseTable(head);
  if (layout) return FileContent{layout->Title, std::move(*layout)};
  if (head.starts_with('<') || head.find("<html") != std::string_view::npos)
    return Foreign("is a web page without rows; save the text list itself");
  if (first.barFields > 0 && head.find("|^|") == std::string_view::npos)
    return Foreign("is neither an AM Query list nor an antenna table: rows of " +
                   std::to_string(first.barFields - 1) + " fields, 31 to 33 expected");
  return layout.error();
}

}  // namespace kestrel
