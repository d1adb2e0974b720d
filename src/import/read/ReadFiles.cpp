#include "import/read/ReadFiles.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "import/read/RowFields.h"
#include "import/read/TableLayout.h"

namespace kestrel {
namespace {

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

void ReadSourceFile(ByteStream& bytes, const std::string& name, const ImportOptions& options,
                    Readings& readings, ImportReport& report) {
  LineStream lines(bytes);
  const std::string_view head = lines.Head();
  const auto refuse = [&](std::string_view reason) {
    if (bytes.Problem().empty()) report.Refuse(name, std::string(reason));
  };
  if (const std::string_view foreign = ForeignContent(head); !foreign.empty()) return refuse(foreign);
  const FirstLines first = LookForAmq(head);
  if (first.amq) {
    readings.HasAmq = true;
    return ReadAmqList(lines, report.AddFile(name, "AM Query list"), options, readings.Amq, report);
  }
  const Result<TableLayout> layout = RecogniseTable(head);
  if (layout) {
    readings.HasTables = true;
    return ReadAntennaTable(lines, report.AddFile(name, layout->Title), *layout, readings.Tables, report);
  }
  std::string reason = layout.error().text;
  if (head.starts_with('<') || head.find("<html") != std::string_view::npos)
    reason = "is a web page without rows; save the text list itself";
  else if (first.barFields > 0 && head.find("|^|") == std::string_view::npos)
    reason = "is neither an AM Query list nor an antenna table: rows of " +
             std::to_string(first.barFields - 1) + " fields, 31 to 33 expected";
  refuse(reason);
}

}  // namespace kestrel
