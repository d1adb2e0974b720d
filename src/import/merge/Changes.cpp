#include "import/merge/Changes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>
#include <optional>
#include <tuple>
#include <utility>

#include "data/StationFile.h"
#include "data/StationLineText.h"
#include "import/SitePosition.h"

namespace kestrel {
namespace {

constexpr double kSamePlace = 1;  // km
constexpr int kMostPairs = 400'000;
constexpr std::size_t kMostChoices = 10'000;
constexpr std::array kKinds = {ChangeKind::New,   ChangeKind::Gone,    ChangeKind::Moved,
                               ChangeKind::Power, ChangeKind::Pattern, ChangeKind::CallSign};

double Distance(const ListedAntenna& a, const ListedAntenna& b) {
  return SiteDistance({a.Latitude, a.Longitude}, {b.Latitude, b.Longitude});
}

std::vector<SeenTower> SeenTowers(const StationRecord& record) {
  constexpr double kRadian = std::numbers::pi / 180;
  std::vector<SeenTower> towers;
  if (record.TowerCount < 2) return towers;
  towers.reserve(static_cast<std::size_t>(record.TowerCount));
  float strongest = 0;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i) {
    SeenTower tower{record.Fields[i], record.Phases[i],
                    static_cast<float>(record.Spacings[i] * std::sin(record.Bearings[i] * kRadian)),
                    static_cast<float>(record.Spacings[i] * std::cos(record.Bearings[i] * kRadian))};
    if (record.Switch[i] != "0" && !towers.empty()) {
      tower.East += towers.back().East;
      tower.North += towers.back().North;
    }
    towers.push_back(tower);
    strongest = std::max(strongest, tower.Field);
  }
  const SeenTower first = towers.front();
  for (SeenTower& tower : towers) {
    if (strongest > 0) tower.Field /= strongest;
    tower.Phase -= first.Phase;
    tower.East -= first.East;
    tower.North -= first.North;
  }
  return towers;
}

/// Whether the two make the same pattern, but for its size. Towers are compared in their order.
bool SamePattern(const ListedAntenna& a, const ListedAntenna& b) {
  if (a.TowerCount != b.TowerCount) return false;
  constexpr double kField = 0.001;
  constexpr double kDegrees = 0.01;
  const auto near = [&](const SeenTower& x, const SeenTower& y) {
    const double turn = std::remainder(x.Phase - y.Phase, 360);
    return std::abs(x.Field - y.Field) <= kField && std::abs(turn) <= kDegrees &&
           std::abs(x.East - y.East) <= kDegrees && std::abs(x.North - y.North) <= kDegrees;
  };
  return std::equal(a.Array.begin(), a.Array.end(), b.Array.begin(), b.Array.end(), near);
}

std::string Towers(float count) {
  if (count == 0) return "not known";
  return DecimalText(count, 0) + (count == 1 ? " tower" : " towers");
}

/// How many things a listener would be told of two antennas of one site: power, pattern.
int Differences(const ListedAntenna& a, const ListedAntenna& b) {
  return (a.PowerKW != b.PowerKW ? 1 : 0) + (SamePattern(a, b) ? 0 : 1);
}

/// The two sides, and which antennas of each have found their counterpart.
class Comparison {
 public:
  Comparison(const ListedAntennas& before, const ListedAntennas& after)
      : before_(before), after_(after), foundBefore_(before.size()), foundAfter_(after.size()) {}

  /// Pairs those of equal key on one site: the like ones first, so that the order of twins does not matter,
  /// then the nearest.
  template <typename Key, typename Paired>
  void PairOnSite(Key key, Paired paired) {
    Pair(key, paired, [](const ListedAntenna& a, const ListedAntenna& b, double distance) {
      return distance <= kSamePlace ? std::optional(std::pair(double(Differences(a, b)), distance))
                                    : std::nullopt;
    });
  }

  /// Pairs those of equal key anywhere, the nearest first.
  template <typename Key, typename Paired>
  void PairAnywhere(Key key, Paired paired) {
    Pair(key, paired, [](const ListedAntenna& a, const ListedAntenna& b, double distance) {
      return std::optional(std::pair(distance, double(Differences(a, b))));
    });
  }

  template <typename Left>
  void ForLeftOver(Left left) const {
    for (std::size_t i = 0; i < before_.size(); ++i)
      if (!foundBefore_[i]) left(ChangeKind::Gone, before_[i]);
    for (std::size_t j = 0; j < after_.size(); ++j)
      if (!foundAfter_[j]) left(ChangeKind::New, after_[j]);
  }

 private:
  using Order = std::vector<std::uint32_t>;

  /// Pairs those of equal key, the smallest rank first; those without a rank do not belong together.
  template <typename Key, typename Paired, typename Rank>
  void Pair(Key key, Paired paired, Rank rank) {
    const Order olds = Unfound(before_, foundBefore_, key);
    const Order news = Unfound(after_, foundAfter_, key);
    int left = kMostPairs;
    for (auto begin = news.begin(); begin != news.end();) {
      const auto wanted = key(after_[*begin]);
      const auto end = std::find_if(begin, news.end(), [&](auto j) { return key(after_[j]) != wanted; });
      auto first = std::lower_bound(olds.begin(), olds.end(), wanted,
                                    [&](auto i, const auto& value) { return key(before_[i]) < value; });
      const auto last = std::find_if(first, olds.end(), [&](auto i) { return key(before_[i]) != wanted; });

      std::deque<std::tuple<std::pair<double, double>, std::uint32_t, std::uint32_t>> choices;
      for (; begin != end; ++begin) {
        while (first != last && foundBefore_[*first]) ++first;
        for (auto at = first; at != last && left > 0 && !foundAfter_[*begin]; ++at) {
          if (foundBefore_[*at]) continue;
          --left;
          const ListedAntenna& old = before_[*at];
          const ListedAntenna& now = after_[*begin];
          const std::optional<std::pair<double, double>> ranked = rank(old, now, Distance(old, now));
          if (!ranked) continue;
          if (*ranked == std::pair(0.0, 0.0))  // it will not find a better one
            Join(*at, *begin, paired);
          else if (choices.size() < kMostChoices)
            choices.emplace_back(*ranked, *at, *begin);
        }
      }
      std::sort(choices.begin(), choices.end());
      for (const auto& [ranked, i, j] : choices)
        if (!foundBefore_[i] && !foundAfter_[j]) Join(i, j, paired);
    }
  }

  template <typename Paired>
  void Join(std::uint32_t i, std::uint32_t j, Paired paired) {
    foundBefore_[i] = foundAfter_[j] = true;
    paired(before_[i], after_[j], Distance(before_[i], after_[j]));
  }

  /// Those without a counterpart, sorted by key.
  template <typename Key>
  static Order Unfound(const ListedAntennas& antennas, const std::vector<bool>& found, Key key) {
    Order order(antennas.size());
    std::iota(order.begin(), order.end(), 0U);
    std::erase_if(order, [&](auto i) { return found[i]; });
    std::sort(order.begin(), order.end(), [&](auto a, auto b) {
      return std::pair(key(antennas[a]), a) < std::pair(key(antennas[b]), b);
    });
    return order;
  }

  const ListedAntennas& before_;
  const ListedAntennas& after_;
  std::vector<bool> foundBefore_;
  std::vector<bool> foundAfter_;
};

}  // namespace

std::string_view ChangeName(ChangeKind kind) {
  switch (kind) {
    case ChangeKind::New:
      return "new";
    case ChangeKind::Gone:
      return "gone";
    case ChangeKind::Moved:
      return "moved";
    case ChangeKind::Power:
      return "power";
    case ChangeKind::Pattern:
      return "pattern";
    case ChangeKind::CallSign:
      return "call sign";
  }
  return {};
}

ListedAntennas ReadAntennas(int channel, const std::string& fileName, std::string_view bytes) {
  ListedAntennas antennas;
  StationFileReader reader(fileName, bytes);
  while (const StationRecord* record = reader.Next()) {
    ListedAntenna antenna;
    const std::string place = record->City + ", " + record->State + ", " + record->Country;
    antenna.Texts = PackedTexts<3>({record->CallSign, record->HoursCode, place});
    antenna.Channel = static_cast<std::int16_t>(channel);
    antenna.TowerCount = record->TowerCount;
    antenna.Latitude = record->Latitude;
    antenna.Longitude = record->Longitude;
    antenna.PowerKW = record->PowerKW;
    antenna.Array = SeenTowers(*record);
    antennas.push_back(std::move(antenna));
  }
  return antennas;
}

std::string ChangeDetail(const Change& change) {
  switch (change.Kind) {
    case ChangeKind::Moved:
      return DecimalText(change.After, 1) + " km";
    case ChangeKind::Power:
      return DecimalText(change.Before, 4) + " kW -> " + DecimalText(change.After, 4) + " kW";
    case ChangeKind::Pattern:
      return change.Before == change.After ? Towers(change.After)
                                           : Towers(change.Before) + " -> " + Towers(change.After);
    case ChangeKind::CallSign:
      return "was " + std::string(change.FormerCallSign());
    default:
      return {};
  }
}

ChangeList CompareChannel(const ListedAntennas& before, const ListedAntennas& after) {
  ChangeList changes;
  const auto add = [&](ChangeKind kind, const ListedAntenna& antenna, std::string_view formerCallSign,
                       float was, float is) {
    changes.push_back(
        {kind, antenna.Channel, was, is,
         PackedTexts<4>({antenna.CallSign(), antenna.Hours(), antenna.Place(), formerCallSign})});
  };
  const auto compare = [&](const ListedAntenna& old, const ListedAntenna& now, double distance) {
    if (distance > kSamePlace) add(ChangeKind::Moved, now, {}, 0, static_cast<float>(distance));
    if (old.PowerKW != now.PowerKW) add(ChangeKind::Power, now, {}, old.PowerKW, now.PowerKW);
    if (!SamePattern(old, now)) add(ChangeKind::Pattern, now, {}, old.TowerCount, now.TowerCount);
  };

  Comparison comparison(before, after);
  const auto call = [](const ListedAntenna& a) { return std::pair(a.CallSign(), a.Hours()); };
  comparison.PairOnSite(call, compare);
  comparison.PairOnSite([](const ListedAntenna& a) { return a.Hours(); },
                        [&](const ListedAntenna& old, const ListedAntenna& now, double distance) {
                          add(ChangeKind::CallSign, now, old.CallSign(), 0, 0);
                          compare(old, now, distance);
                        });
  comparison.PairAnywhere(call, compare);
  comparison.ForLeftOver(
      [&](ChangeKind kind, const ListedAntenna& antenna) { add(kind, antenna, {}, 0, 0); });
  std::stable_sort(changes.begin(), changes.end(), [](const Change& a, const Change& b) {
    return std::tuple(a.Kind, a.CallSign(), a.Hours()) < std::tuple(b.Kind, b.CallSign(), b.Hours());
  });
  return changes;
}

std::string ChangesText(const ChangeList& changes, std::size_t most) {
  if (changes.empty()) return "No changes\n";
  std::string text;
  for (const ChangeKind kind : kKinds) {
    const auto isOfKind = [&](const Change& change) { return change.Kind == kind; };
    const auto count = static_cast<std::size_t>(std::count_if(changes.begin(), changes.end(), isOfKind));
    if (count == 0) continue;
    text += std::string(ChangeName(kind)) + ": " + std::to_string(count) + '\n';
    std::size_t shown = 0;
    for (const Change& change : changes) {
      if (!isOfKind(change) || (most > 0 && shown == most)) continue;
      ++shown;
      text += "  " + std::to_string(change.Channel) + ' ' + std::string(change.CallSign()) + ' ' +
              std::string(change.Hours()) + ", " + std::string(change.Place());
      const std::string detail = ChangeDetail(change);
      text += detail.empty() ? "\n" : ": " + detail + '\n';
    }
    if (shown < count) text += "  and " + std::to_string(count - shown) + " more\n";
  }
  return text;
}

}  // namespace kestrel
