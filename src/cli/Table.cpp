#include "cli/Table.h"

#include <algorithm>
#include <cassert>

#include "core/Text.h"

namespace kestrel::cli {

void Table::AddRow(std::vector<std::string> cells) {
  assert(cells.size() == columns_.size());
  for (std::string& cell : cells)
    std::replace_if(
        cell.begin(), cell.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
  rows_.push_back(std::move(cells));
}

std::string Table::Text() const {
  std::vector<std::string> titles;
  for (const Column& column : columns_) titles.push_back(column.Title);
  std::vector<std::size_t> widths;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    std::size_t width = CharacterCount(titles[i]);
    for (const auto& row : rows_) width = std::max(width, CharacterCount(row[i]));
    widths.push_back(width);
  }

  std::string text;
  const auto addLine = [&](const std::vector<std::string>& cells) {
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (i > 0) line += "  ";
      const std::string padding(widths[i] - CharacterCount(cells[i]), ' ');
      line += columns_[i].Side == Align::Right ? padding + cells[i] : cells[i] + padding;
    }
    text += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
  };
  if (std::any_of(titles.begin(), titles.end(), [](const auto& title) { return !title.empty(); }))
    addLine(titles);
  for (const auto& row : rows_) addLine(row);
  return text;
}

}  // namespace kestrel::cli
