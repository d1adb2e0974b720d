#include "data/OutlineFile.h"

#include <algorithm>

#include "core/Numbers.h"
#include "core/PlainNumber.h"
#include "core/Text.h"
#include "core/TextFields.h"

namespace kestrel {
namespace {

constexpr std::size_t kPiece = 2048;
constexpr double kEndMark = -2000;
constexpr float kPenUp = -100;
constexpr std::string_view kCommentSigns = "><!*'/\\";

struct Vertex {
  double Latitude = 0;
  double Longitude = 0;
};

/// Reads a vertex line as nearly all are: two plain numbers, one blank between them, a line end right behind.
/// Returns the line's length with its end; 0 for any other line, which is then read field by field.
std::size_t ReadPlainVertex(std::string_view bytes, Vertex& vertex) {
  const char* const end = bytes.data() + bytes.size();
  const char* at = ReadPlainNumber(bytes.data(), end, vertex.Latitude);
  if (!at || at == end || *at != ' ') return 0;
  at = ReadPlainNumber(at + 1, end, vertex.Longitude);
  if (!at || at == end) return 0;
  if (*at == '\r' && at + 1 != end) ++at;
  return *at == '\n' ? static_cast<std::size_t>(at + 1 - bytes.data()) : 0;
}

}  // namespace

OutlineReader::OutlineReader(std::string_view bytes, CommentLines comments)
    : lines_(bytes), comments_(comments) {}

const Outline* OutlineReader::Next() {
  piece_.Latitude.clear();
  piece_.Longitude.clear();
  piece_.PenUpBefore.clear();
  const std::size_t begin = count_;
  const std::size_t end = std::min(begin + kPiece, MaxVertices);
  Vertex vertex;
  while (count_ < end && !ended_) {
    if (const std::size_t length = ReadPlainVertex(lines_.Rest(), vertex)) {
      ended_ = vertex.Latitude == kEndMark;
      if (!ended_) Add(vertex.Latitude, vertex.Longitude);
      lines_.SkipLine(length);
    } else if (const auto line = lines_.Next()) {
      ReadAnyLine(*line);
    } else {
      break;
    }
  }
  return count_ > begin ? &piece_ : nullptr;
}

inline void OutlineReader::Add(double latitude, double longitude) {
  const auto north = static_cast<float>(latitude);
  const auto east = static_cast<float>(longitude);
  ++count_;
  if (north == kPenUp && east == kPenUp) {
    piece_.PenUpBefore.push_back(piece_.Latitude.size());
  } else {
    piece_.Latitude.push_back(north);
    piece_.Longitude.push_back(east);
  }
}

void OutlineReader::ReadAnyLine(std::string_view text) {
  std::string_view line = Trim(text);
  if (line.empty()) return;
  if (comments_ == CommentLines::Skip && kCommentSigns.find(line.front()) != std::string_view::npos) return;
  ended_ = LeadingNumber(line) == kEndMark;
  if (ended_) return;
  const double latitude = LeadingNumber(NextBlankField(line).value_or(""));
  Add(latitude, LeadingNumber(NextBlankField(line).value_or("")));
}

std::size_t FindPenUp(std::string_view bytes, std::size_t from) {
  constexpr std::string_view kLine = "\n-100 -100";
  for (std::size_t at = bytes.find(kLine, from); at != std::string_view::npos;
       at = bytes.find(kLine, at + 1)) {
    const std::size_t behind = at + kLine.size();
    if (behind < bytes.size() && (bytes[behind] == '\n' || bytes[behind] == '\r')) return at + 1;
  }
  return bytes.size();
}

}  // namespace kestrel
