#include "draw/LabelPlacement.h"

#include <gtest/gtest.h>

#include <random>

#include "draw/Fonts.h"

namespace kestrel {
namespace {

constexpr Font kFont = {FontFace::Sans, 8};

/// A list with labels, and where they come on a picture of the sheet.
class LabelPlacementTest : public testing::Test {
 protected:
  LabelPlacementTest() {
    rules_.Area = QRectF(0, 0, 1200, 950);
    rules_.Fit = FitSheet(1200, 950);
    list_.SetFont(kFont);
  }

  void Add(Point at, const std::string& text, float weight = 1, bool chosen = false) {
    list_.Label({at, text, chosen, weight});
  }

  /// A box around the letters of a placed label, in pixels.
  QRectF Letters(std::size_t label) const {
    const SurfaceView view(rules_);
    const Point start = view.Baseline(*placement_.Places()[label], kFont);
    const double size = view.FontSize(kFont);
    const double twips = measure_.TextWidth(kFont, list_.LabelText(list_.Labels()[label]));
    return QRectF(start.x, start.y - 0.76 * size, twips * size / (8 * TwipsPerPoint), 0.76 * size);
  }

  std::vector<std::size_t> Placed() const {
    std::vector<std::size_t> placed;
    for (std::size_t i = 0; i < placement_.Places().size(); ++i)
      if (placement_.Places()[i]) placed.push_back(i);
    return placed;
  }

  /// Labels at random, more than there is room for.
  void Crowd(int count, unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> across(-1000, 13000), down(-1000, 10500), weight(0, 1);
    for (int i = 0; i < count; ++i)
      Add({across(random), down(random)}, "1490 Q" + std::to_string(i), weight(random));
  }

  void ExpectNothingCovered() const {
    const std::vector<std::size_t> placed = Placed();
    for (const std::size_t i : placed) {
      EXPECT_TRUE(rules_.Area.contains(Letters(i))) << i;
      for (const std::size_t k : placed)
        EXPECT_TRUE(k >= i || !Letters(i).intersects(Letters(k))) << i << ' ' << k;
    }
  }

  PlatformTextMeasure measure_;
  DisplayList list_{measure_};
  SurfaceRules rules_;
  LabelPlacement placement_;
};

TEST_F(LabelPlacementTest, NoneCoversAnotherWhateverTheSurface) {
  Crowd(1500, 1);
  for (const double pixelSize : {1.0, 2.0}) {
    rules_.PixelSize = pixelSize;
    placement_.PlaceAll(list_, rules_);
    ExpectNothingCovered();
    EXPECT_GT(Placed().size(), 120U);
    EXPECT_LT(Placed().size(), 1400U);
  }
}

TEST_F(LabelPlacementTest, TheChosenChannelGoesFirstThenTheWeight) {
  const Point at = {6000, 2000};
  for (int i = 0; i < 6; ++i) Add(at, "140" + std::to_string(i) + " QAAA", static_cast<float>(i));
  Add(at, "1499 QBBB", 0, true);
  placement_.PlaceAll(list_, rules_);
  EXPECT_EQ(Placed(), (std::vector<std::size_t>{3, 4, 5, 6})) << "four places at one spot";
  EXPECT_EQ(*placement_.Places()[6], FirstLabelPlace(at));
}

TEST_F(LabelPlacementTest, WhatIsAddedLeavesTheOthersWhereTheyAre) {
  Crowd(300, 2);
  placement_.PlaceAll(list_, rules_);
  const LabelPlaces before = placement_.Places();
  Crowd(300, 3);
  placement_.PlaceMore(list_, rules_);
  EXPECT_TRUE(std::equal(before.begin(), before.end(), placement_.Places().begin()));
  EXPECT_EQ(placement_.Places().size(), 600U);
  ExpectNothingCovered();
}

TEST_F(LabelPlacementTest, PanelsHomeAndTheEdgeAreKeptFree) {
  Add({6000, 4560}, "1490 QHOM");
  Add({3000, 7100}, "1490 QPAN");
  Add({11900, 3000}, "1490 QEDG");
  list_.BeginPanel({200, 9400}, kFont);
  list_.FilledBox({200, 6800}, {4500, 9400});
  list_.EndPanel();
  placement_.PlaceAll(list_, rules_);
  ASSERT_EQ(Placed(), (std::vector<std::size_t>{0}));
  const Point home = rules_.Fit.ToSurface(HomeOnSheet);
  EXPECT_FALSE(Letters(0).intersects(QRectF(home.x - 4, home.y - 4, 8, 8)));
}

TEST_F(LabelPlacementTest, OneLabelForAStationWhoseRecordsStandALittleApart) {
  Add({3000, 3000}, "1490 QAAA");
  Add({3015, 3010}, "1490 QAAA");
  Add({9000, 3000}, "1490 QAAA");
  placement_.PlaceAll(list_, rules_);
  EXPECT_EQ(Placed(), (std::vector<std::size_t>{0, 2}));
}

TEST_F(LabelPlacementTest, AllOrNoneWhenTheRulesSaySo) {
  Crowd(20, 4);
  rules_.Look.Labels = LabelChoice::None;
  placement_.PlaceAll(list_, rules_);
  EXPECT_EQ(placement_.Places().size(), 20U);
  EXPECT_TRUE(Placed().empty());
  rules_.Look.Labels = LabelChoice::All;
  placement_.PlaceAll(list_, rules_);
  EXPECT_TRUE(placement_.Places().empty()) << "each where it is tried first";
}

}  // namespace
}  // namespace kestrel
