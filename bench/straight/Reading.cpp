#include "straight/Reading.h"

#include <clocale>
#include <cmath>
#include <cstdlib>

namespace kestrel::straight {
namespace {

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string CutField(std::string& line, char separator) {
  const std::size_t start = line.find_first_not_of(separator);
  if (start == std::string::npos) {
    line.clear();
    return {};
  }
  const std::size_t end = line.find(separator, start);
  const std::string field = line.substr(start, end - start);
  const std::size_t next = line.find_first_not_of(separator, end);
  line = next == std::string::npos ? std::string() : line.substr(next);
  return field;
}

/// strtod with a decimal point whatever the system's locale.
double ToDouble(const char* text, char** end = nullptr) {
  static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
  return strtod_l(text, end, plain);
}

float Number(const std::string& text) {
  return static_cast<float>(ToDouble(text.c_str()));
}

void CutCarriageReturn(std::string& line) {
  if (!line.empty() && line.back() == '\r') line.pop_back();
}

}  // namespace

Outline ReadOutline(const std::string& path) {
  Outline outline;
  std::ifstream file(path);
  std::string line;
  while (std::getline(file, line)) {
    CutCarriageReturn(line);
    line = Trimmed(line);
    if (line.empty()) continue;
    char* next = nullptr;
    const double first = ToDouble(line.c_str(), &next);
    if (first == -2000) break;
    const auto latitude = static_cast<float>(first);
    const auto longitude = static_cast<float>(ToDouble(next));
    if (latitude == -100 && longitude == -100) {
      outline.PenUpBefore.push_back(outline.Latitude.size());
    } else {
      outline.Latitude.push_back(latitude);
      outline.Longitude.push_back(longitude);
    }
  }
  return outline;
}

StationRecord* StationReader::Next() {
  do {
    if (!std::getline(file_, line_)) return nullptr;
  } while (!IsStationLine(line_));
  CutCarriageReturn(line_);
  CutField(line_, ',');
  record_.CallSign = Trimmed(CutField(line_, ','));
  record_.City = Trimmed(CutField(line_, ','));
  record_.State = Trimmed(CutField(line_, ','));
  record_.Country = Trimmed(CutField(line_, ','));
  record_.HoursCode = Trimmed(CutField(line_, ','));
  record_.Latitude = Number(CutField(line_, ','));
  record_.Longitude = Number(CutField(line_, ','));
  record_.PowerKW = Number(CutField(line_, ','));
  CutField(line_, ',');
  CutField(line_, ',');
  record_.TowerCount = static_cast<std::int16_t>(std::nearbyint(Number(CutField(line_, ','))));
  for (std::size_t i = 1; i <= static_cast<std::size_t>(record_.TowerCount); ++i) {
    if (!std::getline(file_, line_)) return nullptr;
    CutCarriageReturn(line_);
    record_.Switch[i] = CutField(line_, ',');
    record_.Fields[i] = Number(CutField(line_, ','));
    record_.Heights[i] = Number(CutField(line_, ','));
    record_.Phases[i] = Number(CutField(line_, ','));
    record_.Spacings[i] = Number(CutField(line_, ','));
    record_.Bearings[i] = Number(CutField(line_, ','));
  }
  return &record_;
}

}  // namespace kestrel::straight
