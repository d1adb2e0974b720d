#include "data/OutlineFile.h"

#include <algorithm>
#include <span>

#include "core/Numbers.h"
#include "core/Text.h"
#include "core/TextFields.h"

namespace kestrel {
namespace {

constexpr std::size_t kPiece = 2048;
constexpr double kEndMark = -2000;
constexpr float kPenUp = -100;
constexpr std::string_view kCommentSigns = "><!*'/\\";

}  // namespace

OutlineReader::OutlineReader(std::string_view bytes, CommentLines comments)
    : lines_(bytes), comments_(comments) {}

const Outline* OutlineReader::Next() {
  piece_.Latitude.clear();
  piece_.Longitude.clear();
  piece_.PenUpBefore.clear();
  const std::size_t begin = count_;
  const std::size_t end = std::min(begin + kPiece, MaxVertices);
  while (count_ < end && !ended_) {
    if (ReadLinesAlike(end - count_) > 0) continue;
    const auto line = lines_.Next();
    if (!line) break;
    ReadAnyLine(*line);
  }
  return count_ > begin ? &piece_ : nullptr;
}

std::size_t OutlineReader::ReadLinesAlike(std::size_t most) {
  const std::string_view bytes = lines_.Rest();
  std::size_t count = layout_ ? layout_->CountLines(bytes, most) : 0;
  if (count == 0) {
    const std::optional<VertexLayout> layout = VertexLayout::Of(bytes);
    if (!layout) return 0;
    layout_ = layout;
    count = layout_->CountLines(bytes, most);
  }
  const std::size_t before = piece_.Latitude.size();
  piece_.Latitude.resize(before + count);
  piece_.Longitude.resize(before + count);
  layout_->ReadLines(bytes, std::span(piece_.Latitude).subspan(before),
                     std::span(piece_.Longitude).subspan(before));
  count_ += count;
  lines_.SkipLines(count, count * layout_->LineLength());
  return count;
}

void OutlineReader::ReadAnyLine(std::string_view text) {
  std::string_view line = Trim(text);
  if (line.empty()) return;
  if (comments_ == CommentLines::Skip && kCommentSigns.find(line.front()) != std::string_view::npos) return;
  const double first = LeadingNumber(NextBlankField(line).value_or(""));
  ended_ = first == kEndMark;
  if (ended_) return;
  const auto latitude = static_cast<float>(first);
  const auto longitude = static_cast<float>(LeadingNumber(NextBlankField(line).value_or("")));
  ++count_;
  if (latitude == kPenUp && longitude == kPenUp) {
    piece_.PenUpBefore.push_back(piece_.Latitude.size());
  } else {
    piece_.Latitude.push_back(latitude);
    piece_.Longitude.push_back(longitude);
  }
}

std::size_t FindPenUp(std::string_view bytes, std::size_t from) {
  constexpr std::string_view kLine = "\n-100 -100";
  for (std::size_t at = bytes.find(kLine, from); at != std::string_view::npos;
       at = bytes.find(kLine, at + 1)) {
    const std::size_t after = at + kLine.size();
    if (after < bytes.size() && (bytes[after] == '\n' || bytes[after] == '\r')) return at + 1;
  }
  return bytes.size();
}

}  // namespace kestrel
