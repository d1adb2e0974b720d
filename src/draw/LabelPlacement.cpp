#include "draw/LabelPlacement.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>

#include "draw/Fonts.h"

namespace kestrel {
namespace {

constexpr int kFixed = -1;              // owner of what is no label
constexpr double kAboveBaseline = 0.8;  // of the font's size: capitals and digits, and a little room
constexpr double kBelowBaseline = 0.2;
constexpr float kHomeReach = 60;  // twips: the mark of home and its line

/// Widths of texts in one font, in shares of its size. Letters beyond ASCII are measured each time.
class Widths {
 public:
  explicit Widths(const Font& font) : font_(font) {
    for (int c = ' '; c < 127; ++c) {
      const char letter = static_cast<char>(c);
      letters_[static_cast<std::size_t>(c)] = measure_.TextWidth(font, {&letter, 1});
    }
  }

  float Twips(std::string_view text) const {
    float width = 0;
    for (const char c : text) {
      if (c < ' ' || c > '~') return measure_.TextWidth(font_, text);
      width += letters_[static_cast<unsigned char>(c)];
    }
    return width;
  }

 private:
  Font font_;
  PlatformTextMeasure measure_;
  std::array<float, 127> letters_{};
};

/// How labels of one font come out on a surface.
struct Lettering {
  Widths widths;
  float ascent;       // twips of the sheet
  float size;         // on the surface
  float widthFactor;  // surface units for a twip of text

  Lettering(const Font& font, const SurfaceView& view)
      : widths(font),
        ascent(PlatformTextMeasure().Ascent(font)),
        size(static_cast<float>(view.FontSize(font))),
        widthFactor(size / (font.Points * TwipsPerPoint)) {}
};

/// The base lines to try, in turn: the one just above the station at `first`, as high above it as the next is
/// below, and a line farther.
std::array<float, 4> BaseLines(float station, float first, float size) {
  const auto ascent = static_cast<float>(kAboveBaseline) * size;
  const float below = station + (station - first) + ascent;
  return {first, below, first - size, below + size};
}

bool ComesBefore(const KeptLabel& a, const KeptLabel& b) {
  if (a.Chosen != b.Chosen) return a.Chosen;
  return a.Weight > b.Weight;
}

}  // namespace

void LabelPlacement::TakeFixedBoxes(const DisplayList& list, const SurfaceRules& rules) {
  SurfaceView view(rules);
  const auto take = [&](Point corner, Point opposite) {
    const QRectF box = view.Filled(corner, opposite);
    space_->Take({static_cast<float>(box.left()), static_cast<float>(box.top()),
                  static_cast<float>(box.right()), static_cast<float>(box.bottom())},
                 kFixed);
  };
  const std::vector<PanelBox>& panels = list.PanelBoxes();
  if (panelsTaken_ == 0)
    take({HomeOnSheet.x - kHomeReach, HomeOnSheet.y - kHomeReach},
         {HomeOnSheet.x + kHomeReach, HomeOnSheet.y + kHomeReach});
  for (; panelsTaken_ < panels.size(); ++panelsTaken_) {
    const PanelBox& panel = panels[panelsTaken_];
    if (panel.Layer && !rules.Look.Shows(*panel.Layer)) continue;
    view.BeginPanel(panel.Anchor, panel.Smallest, panel.Place);
    take(panel.Corner, panel.Opposite);
    view.EndPanel();
  }
}

void LabelPlacement::PlaceAll(const DisplayList& list, const SurfaceRules& rules) {
  space_.reset();
  places_.clear();
  panelsTaken_ = 0;
  PlaceMore(list, rules);
}

void LabelPlacement::PlaceMore(const DisplayList& list, const SurfaceRules& rules) {
  const std::vector<KeptLabel>& labels = list.Labels();
  if (rules.Look.Labels != LabelChoice::Fitting) {
    if (rules.Look.Labels == LabelChoice::None) places_.assign(labels.size(), std::nullopt);
    return;
  }
  const SurfaceView view(rules);
  std::map<std::pair<FontFace, float>, Lettering> letterings;
  const auto letteringOf = [&](const Font& font) -> const Lettering& {
    const auto key = std::pair(font.Face, font.Points);
    const auto found = letterings.find(key);
    return found != letterings.end() ? found->second
                                     : letterings.emplace(key, Lettering(font, view)).first->second;
  };
  if (!space_) {
    const auto pixel = static_cast<float>(rules.PixelSize);
    const ClipArea area(rules.Area, 0);
    space_.emplace(LabelBox{area.left, area.top, area.right, area.bottom}, 64 * pixel, 16 * pixel);
  }
  TakeFixedBoxes(list, rules);

  const std::size_t before = places_.size();
  places_.resize(labels.size());
  std::vector<std::uint32_t> order(labels.size() - before);
  std::iota(order.begin(), order.end(), static_cast<std::uint32_t>(before));
  std::stable_sort(order.begin(), order.end(),
                   [&](auto a, auto b) { return ComesBefore(labels[a], labels[b]); });
  for (const std::uint32_t i : order) {
    const KeptLabel& label = labels[i];
    const Point station = view.At(label.At);
    if (!rules.Area.contains(station.x, station.y)) continue;
    const std::string_view text = list.LabelText(label);
    const Lettering& lettering = letteringOf(label.Face);
    const Point corner = FirstLabelPlace(label.At);
    const Point start = view.At({corner.x, corner.y + lettering.ascent});
    const float width = lettering.widths.Twips(text) * lettering.widthFactor;
    for (const float base : BaseLines(station.y, start.y, lettering.size)) {
      const LabelBox box = {start.x, base - static_cast<float>(kAboveBaseline) * lettering.size,
                            start.x + width, base + static_cast<float>(kBelowBaseline) * lettering.size};
      if (!space_->Holds(box)) continue;
      bool taken = false;
      const bool same = space_->AnyTouching(box, [&](int owner) {
        taken = true;
        return owner != kFixed && list.LabelText(labels[static_cast<std::size_t>(owner)]) == text;
      });
      if (same) break;
      if (taken) continue;
      space_->Take(box, static_cast<int>(i));
      const Point sheet = rules.Fit.ToSheet({start.x, base});
      places_[i] = Point{corner.x, sheet.y - lettering.ascent};
      break;
    }
  }
}

std::vector<std::uint32_t> LabelsAt(const DisplayList& list, const SurfaceRules& rules,
                                    const LabelPlaces& places, const QPointF& at) {
  const SurfaceView view(rules);
  const PlatformTextMeasure measure;
  std::vector<std::uint32_t> found;
  for (std::uint32_t i = 0; i < list.Labels().size(); ++i) {
    const KeptLabel& label = list.Labels()[i];
    const bool placed = i < places.size();
    if (placed && !places[i]) continue;
    const Point start = view.Baseline(placed ? *places[i] : FirstLabelPlace(label.At), label.Face);
    const double size = view.FontSize(label.Face);
    const QRectF reach(start.x, start.y - kAboveBaseline * size, size * label.Count, size);
    if (!reach.contains(at)) continue;
    const double width = size * measure.TextWidth(label.Face, list.LabelText(label)) /
                         (double{label.Face.Points} * TwipsPerPoint);
    if (at.x() <= start.x + width) found.push_back(i);
  }
  return found;
}

void PlayPlaced(const DisplayList& list, const SurfaceRules& rules, Canvas& canvas) {
  LabelPlacement placement;
  placement.PlaceAll(list, rules);
  list.PlayFrom(0, canvas, SheetBox::Everything(), placement.Places(), rules.Look);
}

}  // namespace kestrel
