#include "data/OutlineFile.h"

#include "core/Lines.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "core/TextFields.h"

namespace kestrel {
namespace {

constexpr double kEndMark = -2000;
constexpr float kPenUp = -100;
constexpr std::string_view kCommentSigns = "><!*'/\\";

}  // namespace

Outline ReadOutline(std::string_view bytes, CommentLines comments) {
  Outline outline;
  LineReader lines(bytes);
  while (const auto next = lines.Next()) {
    std::string_view line = Trim(*next);
    if (line.empty()) continue;
    if (comments == CommentLines::Skip && kCommentSigns.find(line.front()) != std::string_view::npos)
      continue;
    if (LeadingNumber(line) == kEndMark) break;
    const auto latitude = static_cast<float>(LeadingNumber(NextBlankField(line).value_or("")));
    const auto longitude = static_cast<float>(LeadingNumber(NextBlankField(line).value_or("")));
    if (latitude == kPenUp && longitude == kPenUp) {
      outline.PenUpBefore.push_back(outline.Latitude.size());
    } else {
      outline.Latitude.push_back(latitude);
      outline.Longitude.push_back(longitude);
    }
  }
  return outline;
}

}  // namespace kestrel
