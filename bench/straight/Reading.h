#pragma once

#include <fstream>
#include <string>

#include "data/OutlineFile.h"
#include "data/StationFile.h"

// The straight way to read the data files: one getline a line, one strtod a number. It is what the fast
// readers are measured and checked against, for well-formed ASCII files.

namespace kestrel::straight {

Outline ReadOutline(const std::string& path);

/// Walks over the records of a station file, as StationFileReader does.
class StationReader {
 public:
  explicit StationReader(const std::string& path) : file_(path) {}

  StationRecord* Next();

 private:
  std::ifstream file_;
  std::string line_;
  StationRecord record_;
};

}  // namespace kestrel::straight
