#include "data/OutlineFile.h"

#include "core/Lines.h"
#include "core/Numbers.h"
#include "core/PlainNumber.h"
#include "core/Text.h"
#include "core/TextFields.h"

namespace kestrel {
namespace {

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

inline void Add(Outline& outline, const Vertex& vertex) {
  const auto latitude = static_cast<float>(vertex.Latitude);
  const auto longitude = static_cast<float>(vertex.Longitude);
  if (latitude == kPenUp && longitude == kPenUp) {
    outline.PenUpBefore.push_back(outline.Latitude.size());
  } else {
    outline.Latitude.push_back(latitude);
    outline.Longitude.push_back(longitude);
  }
}

/// Reads one line of any form. Returns whether it is the end mark.
bool ReadAnyLine(std::string_view text, CommentLines comments, Outline& outline) {
  std::string_view line = Trim(text);
  if (line.empty()) return false;
  if (comments == CommentLines::Skip && kCommentSigns.find(line.front()) != std::string_view::npos)
    return false;
  if (LeadingNumber(line) == kEndMark) return true;
  const double latitude = LeadingNumber(NextBlankField(line).value_or(""));
  Add(outline, {latitude, LeadingNumber(NextBlankField(line).value_or(""))});
  return false;
}

}  // namespace

Outline ReadOutline(std::string_view bytes, CommentLines comments) {
  constexpr std::size_t kUsualLine = 16;
  Outline outline;
  outline.Latitude.reserve(bytes.size() / kUsualLine);
  outline.Longitude.reserve(bytes.size() / kUsualLine);
  LineReader lines(bytes);
  Vertex vertex;
  while (outline.Latitude.size() + outline.PenUpBefore.size() < MaxVertices) {
    if (const std::size_t length = ReadPlainVertex(lines.Rest(), vertex)) {
      outline.Ended = vertex.Latitude == kEndMark;
      if (outline.Ended) break;
      Add(outline, vertex);
      lines.SkipLine(length);
    } else {
      const auto line = lines.Next();
      outline.Ended = line && ReadAnyLine(*line, comments, outline);
      if (!line || outline.Ended) break;
    }
  }
  return outline;
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
