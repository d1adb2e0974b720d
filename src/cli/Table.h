#pragma once

#include <string>
#include <vector>

namespace kestrel::cli {

enum class Align { Left, Right };

/// A table for people: columns as wide as their widest cell, two blanks between them.
class Table {
 public:
  struct Column {
    std::string Title;
    Align Side = Align::Left;
  };

  explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}

  /// Control characters become blanks. REQUIRES: as many cells as there are columns.
  void AddRow(std::vector<std::string> cells);

  /// The titles, unless all are empty, and the rows, one line each, without blanks at their ends.
  std::string Text() const;

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace kestrel::cli
