#include "import/read/TableLayout.h"

#include <algorithm>

#include "core/Text.h"
#include "import/read/RowFields.h"
#include "import/read/TableColumns.h"

namespace kestrel {
namespace {

constexpr std::string_view kEndMark = "|^|";
constexpr std::size_t kSampleRows = 200;

using Names = std::vector<std::string>;
using Row = std::vector<std::string_view>;

Error Refused(std::string text) {
  return {Error::Kind::Malformed, "", 0, std::move(text)};
}

Error NoTable(const std::string& what) {
  return Refused("is neither an AM Query list nor an antenna table: " + what);
}

bool Has(const Names& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool IsIdentifier(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsNumberOrEmpty(std::string_view text) {
  return text.empty() || WholeNumber(text);
}

bool IsLetterOf(std::string_view text, std::string_view letters) {
  return text.size() == 1 && letters.find(text) != std::string_view::npos;
}

/// Whether the text may stand in the column; columns that tell nothing accept all.
bool Fits(std::string_view column, std::string_view text) {
  for (const std::string_view key : {"ant_sys_id", "application_id", "facility_id", "tower_num", "aug_id"})
    if (column == key) return IsIdentifier(text);
  if (column == "lat_dir") return IsLetterOf(text, "NS");
  if (column == "lon_dir") return IsLetterOf(text, "EW");
  if (column == "hours_operation") return IsLetterOf(text, "UDNCRPX");
  if (column == "am_dom_status" || column == "eng_record_type") return text.size() <= 1;
  if (column == "ant_mode") return text.size() != 1;
  if (column == "app_service" || column == "fac_service")
    return text.size() == 2 && WholeNumber(text) == std::nullopt;
  if (column == "last_update_date" || column == "last_change_date")
    return text.empty() || text.find('/') != std::string_view::npos;
  for (const std::string_view number :
       {"power", "field_ratio", "phasing_deg", "spacing_deg", "orientation_deg", "elec_hgt_deg",
        "azimuth_deg", "radiation_aug", "span_deg", "fac_frequency"})
    if (column == number) return IsNumberOrEmpty(text);
  return true;
}

std::size_t FittingRows(const Names& columns, const std::vector<Row>& rows) {
  return static_cast<std::size_t>(std::count_if(rows.begin(), rows.end(), [&](const Row& row) {
    if (row.size() != columns.size()) return false;
    for (std::size_t i = 0; i < row.size(); ++i)
      if (!Fits(columns[i], row[i])) return false;
    return true;
  }));
}

/// The orders in which the columns of a table are known to stand.
std::vector<Names> ColumnOrders(const TableColumns& known) {
  Names older(known.Columns.begin(), known.Columns.end());
  Names sorted = older;
  std::sort(sorted.begin(), sorted.end());
  std::vector<Names> orders = {older, sorted};
  if (known.Kind == TableKind::Applications) {
    std::erase(sorted, "last_change_date");
    orders.push_back(sorted);
  }
  return orders;
}

Result<TableLayout> ByContent(const std::vector<Row>& rows) {
  TableLayout best;
  std::size_t bestRows = 0;
  bool ambiguous = false;
  for (const TableColumns& known : KnownTables()) {
    for (Names& order : ColumnOrders(known)) {
      const std::size_t fitting = FittingRows(order, rows);
      if (fitting == 0 || fitting < bestRows) continue;
      ambiguous = fitting == bestRows;
      bestRows = fitting;
      best.Kind = known.Kind;
      best.Title = std::string(known.Name) + " table";
      best.Columns = std::move(order);
    }
  }
  if (bestRows * 2 <= rows.size())
    return NoTable("rows of " + std::to_string(rows.front().size()) +
                   " columns that are none of the antenna tables'");
  if (ambiguous)
    return NoTable("a table whose columns stand in an order that its first rows do not give away");
  return best;
}

/// The shortest of the names that hold all parts; empty when there is none.
std::string_view FindAlias(const Names& names, const std::vector<std::string_view>& parts) {
  std::string_view found;
  for (const std::string& name : names) {
    const bool holdsAll = std::all_of(parts.begin(), parts.end(), [&](std::string_view part) {
      return name.find(part) != std::string::npos;
    });
    if (holdsAll && (found.empty() || name.size() < found.size())) found = name;
  }
  return found;
}

/// Each column under the older name that it goes on with; columns without one keep theirs.
Names OlderNames(const Names& names, const CurrentTable& current) {
  Names older = names;
  for (std::string& name : older)
    if (IsColumnName(name)) name = "current_" + name;  // not to be taken for the older column of that name
  for (const CurrentTable::Alias& alias : current.Aliases) {
    const std::string_view found = FindAlias(names, alias.Parts);
    if (found.empty()) continue;
    const auto at = std::find(names.begin(), names.end(), found) - names.begin();
    older[static_cast<std::size_t>(at)] = alias.OlderName;
  }
  return older;
}

Result<TableLayout> WithRequired(TableLayout layout, const TableColumns& known) {
  std::string missing;
  for (const std::string_view name : known.Required)
    if (!Has(layout.Columns, name)) missing += (missing.empty() ? "" : ", ") + std::string(name);
  if (missing.empty()) return layout;
  return Refused("is the " + layout.Title + ", but without a column for " + missing);
}

Result<TableLayout> ByHeader(const Names& names) {
  TableLayout layout;
  layout.Header = true;
  for (const CurrentTable& current : CurrentTables()) {
    if (!Has(names, current.Key)) continue;
    layout.Kind = current.Kind;
    layout.Title = std::string(current.Name) + " table";
    layout.Columns = OlderNames(names, current);
    layout.Current = true;
    for (const TableColumns& known : KnownTables())
      if (known.Kind == current.Kind) return WithRequired(std::move(layout), known);
  }
  for (const TableColumns& known : KnownTables()) {
    const bool meant = std::all_of(known.Recognised.begin(), known.Recognised.end(),
                                   [&](std::string_view n) { return Has(names, n); });
    if (!meant) continue;
    layout.Kind = known.Kind;
    layout.Title = std::string(known.Name) + " table";
    layout.Columns = names;
    return WithRequired(std::move(layout), known);
  }
  return NoTable("a table that the importer does not use");
}

bool IsHeader(const Names& names) {
  return IsColumnName(names.front()) || std::count_if(names.begin(), names.end(), IsColumnName) >= 3;
}

std::string_view WithoutEnd(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

Result<TableLayout> RecogniseTable(std::string_view head) {
  std::string_view first = WithoutEnd(head.substr(0, head.find('\n')));
  const bool endMarks = first.ends_with(kEndMark);
  if (endMarks) first.remove_suffix(kEndMark.size());
  Row fields;
  SplitAtBars(first, fields);
  const Names names(fields.begin(), fields.end());
  if (IsHeader(names)) {
    Result<TableLayout> layout = ByHeader(names);
    if (layout) (*layout).EndMarks = endMarks;
    return layout;
  }

  std::vector<Row> rows;
  std::string unescaped;
  for (std::size_t end = head.find('\n'); !head.empty() && rows.size() < kSampleRows; end = head.find('\n')) {
    std::string_view row = WithoutEnd(head.substr(0, end));
    head.remove_prefix(end == std::string_view::npos ? head.size() : end + 1);
    if (!row.ends_with(kEndMark) || row.find("\\|") != std::string_view::npos) continue;
    row.remove_suffix(kEndMark.size());
    SplitAtBars(row, fields);
    rows.push_back(fields);
  }
  if (rows.empty()) return NoTable("no row of it ends in |^|, as those of the antenna tables do");
  return ByContent(rows);
}

}  // namespace kestrel
