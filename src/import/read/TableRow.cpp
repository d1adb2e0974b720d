#include "import/read/TableRow.h"

#include "core/Text.h"
#include "import/read/RowFields.h"
#include "import/read/SexagesimalAngles.h"

namespace kestrel {
namespace {

constexpr std::string_view kEndMark = "|^|";
constexpr std::size_t kLongestKey = 200;  // bytes

}  // namespace

TableRow::TableRow(LineStream& lines, int file, const TableLayout& layout, ImportReport& report)
    : lines_(lines), file_(file), layout_(layout), report_(report) {
  for (std::size_t i = 0; i < layout.Columns.size(); ++i) {
    const std::string_view name = layout.Columns[i];
    columns_.emplace(name, i);
    if (name.ends_with("last_update_date") || name.ends_with("last_change_date")) lastChange_ = i;
  }
}

bool TableRow::Next() {
  fault_.clear();
  while (const auto next = lines_.Next()) {
    std::string_view line = *next;
    if (layout_.Header && lines_.LineNumber() == 1) continue;
    if (Trim(line).empty()) continue;
    report_.Read(Place());
    if (lines_.WasCut()) {
      LeaveOut(Finding::WrongForm, "the row is longer than 64 KB");
      continue;
    }
    if (line.ends_with(kEndMark)) {
      line.remove_suffix(kEndMark.size());
    } else if (layout_.EndMarks) {
      LeaveOut(Finding::WrongForm, "the row does not end in |^|");
      continue;
    }
    SplitTableRow(line, fields_, unescaped_);
    if (fields_.size() == layout_.Columns.size()) return true;
    LeaveOut(Finding::WrongForm, std::to_string(fields_.size()) + " columns, " +
                                     std::to_string(layout_.Columns.size()) + " expected");
  }
  return false;
}

std::string_view TableRow::Text(std::string_view column) const {
  const auto at = columns_.find(column);
  return at == columns_.end() ? std::string_view{} : fields_[at->second];
}

std::string TableRow::Key(std::string_view column) {
  if (Text(column).empty()) Fail(column);
  return OptionalKey(column);
}

std::string TableRow::OptionalKey(std::string_view column) {
  const std::string_view text = Text(column);
  if (text.size() <= kLongestKey) return std::string(text);
  Fail(column);
  return {};
}

std::optional<double> TableRow::Number(std::string_view column, double least, double most) {
  const std::string_view text = Text(column);
  if (text.empty()) return std::nullopt;
  const std::optional<double> number = WholeNumber(text);
  if (number && *number >= least && *number <= most) return number;
  Fail(column);
  return std::nullopt;
}

char TableRow::Letter(std::string_view column) const {
  const std::string_view text = Text(column);
  return text.empty() ? '\0' : text.front();
}

FacilityId TableRow::Facility() {
  const std::optional<FacilityId> id = ReadFacilityId(Text("facility_id"));
  if (!id) Fail("facility_id");
  return id.value_or(0);
}

SitePosition TableRow::Position() {
  const Result<SitePosition> position =
      ReadSitePosition({Text("lat_dir"), Text("lat_deg"), Text("lat_min"), Text("lat_sec")},
                       {Text("lon_dir"), Text("lon_deg"), Text("lon_min"), Text("lon_sec")});
  if (position) return *position;
  if (fault_.empty()) fault_ = position.error().text;
  return {};
}

void TableRow::Fail(std::string_view column) {
  if (fault_.empty()) fault_ = std::string(column) + " \"" + std::string(Text(column)) + '"';
}

bool TableRow::Faulty() {
  if (fault_.empty()) return false;
  LeaveOut(Finding::BadField, fault_);
  return true;
}

}  // namespace kestrel
