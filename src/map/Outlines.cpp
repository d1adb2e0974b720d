#include "map/Outlines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <future>
#include <optional>
#include <vector>

namespace kestrel {
namespace {

constexpr std::size_t kLongStroke = 4096;  // vertices; no coast of the data given has as many

/// Strokes to be drawn later.
class KeptStrokes {
 public:
  void Keep(std::span<const Point> stroke) {
    points_.insert(points_.end(), stroke.begin(), stroke.end());
    ends_.push_back(points_.size());
  }

  void Draw(Canvas& canvas) const {
    std::size_t begin = 0;
    for (const std::size_t end : ends_) {
      canvas.Polyline(std::span(points_).subspan(begin, end - begin));
      begin = end;
    }
  }

 private:
  std::vector<Point> points_;
  std::vector<std::size_t> ends_;
};

/// Returns whether the end mark was met.
bool JoinOutline(std::string_view bytes, const OutlinePen& pen, VertexJoiner::DrawStroke draw) {
  OutlineReader reader(bytes, pen.Comments);
  VertexJoiner joiner(pen.LongestStep, std::move(draw));
  std::vector<Point> points;
  while (const Outline* const piece = reader.Next()) {
    points.resize(piece->Latitude.size());
    pen.Place(*piece, points);
    joiner.Add(*piece, points);
  }
  joiner.End();
  return reader.Ended();
}

/// Whether lines are so short that many more vertices than usual stand in as many bytes.
bool HasShortLines(std::string_view bytes) {
  constexpr std::size_t kShortLine = 8;  // a CR LF counts as two lines
  constexpr std::size_t kPiece = 255;  // whose line ends a byte can count, so that many are counted at a time
  std::size_t ends = 0;
  for (std::string_view rest = bytes; !rest.empty(); rest.remove_prefix(std::min(kPiece, rest.size()))) {
    unsigned char inPiece = 0;
    for (const char c : rest.substr(0, kPiece))
      inPiece = static_cast<unsigned char>(inPiece + (int{c == '\n'} | int{c == '\r'}));
    ends += inPiece;
  }
  return ends * kShortLine > bytes.size();
}

/// Where to cut a file in two that are drawn as the whole is, of which the second is kept in memory until the
/// first is drawn. The file's end when it is short, when it may have more than MaxVertices, whose lines have
/// two characters at least, and when the second half would take more memory than its bytes.
std::size_t WhereToCut(std::string_view bytes) {
  constexpr std::size_t kShort = 262'144;
  if (bytes.size() <= kShort || bytes.size() > 2 * MaxVertices) return bytes.size();
  const std::size_t cut = FindPenUp(bytes, bytes.size() / 2);
  return HasShortLines(bytes.substr(cut)) ? bytes.size() : cut;
}

/// An outline whose second half, when it is long, is read by another thread from now on.
class OutlineInHalves {
 public:
  /// The bytes and the pen must outlive it.
  OutlineInHalves(std::string_view bytes, const OutlinePen& pen)
      : front_(bytes.substr(0, WhereToCut(bytes))), pen_(pen) {
    if (front_.size() == bytes.size()) return;
    readingBack_ = std::async([&pen, back = bytes.substr(front_.size())] {
      KeptStrokes strokes;
      JoinOutline(back, pen, [&strokes](std::span<const Point> stroke) { strokes.Keep(stroke); });
      return strokes;
    });
  }

  void Draw(Canvas& canvas) {
    const auto draw = [&canvas](std::span<const Point> stroke) { canvas.Polyline(stroke); };
    const bool ended = JoinOutline(front_, pen_, draw);
    if (!readingBack_.valid()) return;
    const KeptStrokes strokes = readingBack_.get();
    if (!ended) strokes.Draw(canvas);
  }

 private:
  std::string_view front_;
  const OutlinePen& pen_;
  std::future<KeptStrokes> readingBack_;
};

std::string_view View(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// Adds why a file that is there cannot be read.
void AddNote(const Result<QByteArray>& file, std::vector<std::string>& notes) {
  if (!file && file.error().kind != Error::Kind::NotFound) notes.push_back(file.error().Message());
}

}  // namespace

void VertexJoiner::EndStroke(std::span<const Point> rest) {
  if (begun_.empty()) {
    if (rest.size() > 1) draw_(rest);
    return;
  }
  begun_.insert(begun_.end(), rest.begin(), rest.end());
  if (begun_.size() > 1) draw_(begun_);
  begun_.clear();
}

bool VertexJoiner::IsLongStep(Point from, Point to) const {
  // Written so that a step to nowhere (NaN) is a long one.
  return !(std::abs(to.x - from.x) <= longestStep_.x && std::abs(to.y - from.y) <= longestStep_.y);
}

bool VertexJoiner::GoesOn(std::span<const Point> points) const {
  if (points.empty()) return true;
  if (!begun_.empty() && IsLongStep(begun_.back(), points.front())) return false;
  // All points in a row, without an early end, so that many are looked at together.
  int others = 0;
  for (const Point point : points)
    others |= int{!(std::abs(point.x) <= CoordinateLimit)} | int{!(std::abs(point.y) <= CoordinateLimit)};
  for (std::size_t i = 1; i < points.size(); ++i)
    others |= int{!(std::abs(points[i].x - points[i - 1].x) <= longestStep_.x)} |
              int{!(std::abs(points[i].y - points[i - 1].y) <= longestStep_.y)};
  return others == 0;
}

std::span<const Point> VertexJoiner::Join(std::span<Point> points) {
  if (GoesOn(points)) return points;
  std::size_t begin = 0;  // of the present stroke
  for (std::size_t i = 0; i < points.size(); ++i) {
    const bool placed = std::isfinite(points[i].x) && std::isfinite(points[i].y);
    const Point* const previous = i > begin ? &points[i - 1] : begun_.empty() ? nullptr : &begun_.back();
    if (!placed || !previous || IsLongStep(*previous, points[i])) {
      EndStroke(points.subspan(begin, i - begin));
      begin = placed ? i : i + 1;
    }
    points[i] = Clamped(points[i]);
  }
  return points.subspan(begin);
}

void VertexJoiner::Add(const Outline& piece, std::span<Point> points) {
  std::size_t begin = 0;
  for (const std::size_t penUp : piece.PenUpBefore) {
    EndStroke(Join(points.subspan(begin, penUp - begin)));
    begin = penUp;
  }
  const std::span<const Point> rest = Join(points.subspan(begin));
  begun_.insert(begun_.end(), rest.begin(), rest.end());
  if (begun_.size() < kLongStroke) return;
  const Point last = begun_.back();
  EndStroke({});
  begun_.push_back(last);
}

void VertexJoiner::End() {
  EndStroke({});
}

OutlinePen PenFor(const MapProjection& projection) {
  OutlinePen pen;
  pen.Place = [projection](const Outline& piece, std::span<Point> points) {
    projection.Vertices(piece.Latitude, piece.Longitude, points);
  };
  return pen;
}

void DrawOutline(Canvas& canvas, std::string_view bytes, const OutlinePen& pen) {
  OutlineInHalves(bytes, pen).Draw(canvas);
}

void DrawHomeMark(Canvas& canvas, Point at) {
  constexpr float kRadius = 50;
  canvas.SetColor(Palette::Home);
  canvas.Circle(at, kRadius);
  canvas.Line({at.x - kRadius, at.y}, {at.x + kRadius, at.y});
  canvas.Line({at.x, at.y - kRadius}, {at.x, at.y + kRadius});
}

std::vector<std::string> DrawOutlineFiles(Canvas& canvas, const DataFolder& folder,
                                          const MapProjection& projection) {
  const OutlinePen pen = PenFor(projection);
  // The longer one first, so that its second half is read while the states are drawn.
  const Result<QByteArray> region = folder.Read("REGION2.dat");
  std::optional<OutlineInHalves> regionOutline;
  if (region) regionOutline.emplace(View(*region), pen);
  const Result<QByteArray> states = folder.Read("STATES.dat");
  canvas.SetLineWidth(1);
  if (states) {
    canvas.SetColor(Palette::StatesOutline);
    DrawOutline(canvas, View(*states), pen);
  }
  DrawHomeMark(canvas, HomeOnSheet);
  if (regionOutline) {
    canvas.SetColor(Palette::RegionOutline);
    regionOutline->Draw(canvas);
  }
  std::vector<std::string> notes;
  AddNote(states, notes);
  AddNote(region, notes);
  return notes;
}

}  // namespace kestrel
