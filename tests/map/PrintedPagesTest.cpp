#include "map/PrintedPages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "RecordingCanvas.h"
#include "TestFolder.h"

namespace kestrel {
namespace {

constexpr PageSize kLetterLandscape = {14688, 11088};
constexpr PageSize kLetterPortrait = {11088, 14688};

std::vector<std::string> TextsOf(const PrintedPage& page, PageSize size) {
  RecordingCanvas canvas;
  for (const PagePane& pane : page.Layout(size)) pane.Draw(canvas);
  return canvas.Texts();
}

TEST(PrintedPagesTest, TheMapPageRepeatsTheDrawingUnderItsTitle) {
  TestFolder data;
  data.Put("Stations.txt", "Stations of a test, 2026\r\n");
  SessionState state;
  state.CurrentFrequency = 620;
  state.HomeLatitude = -12.5;
  FixedMeasure measure;
  const auto texts = [&](const std::vector<int>& channels, bool scanned) {
    DisplayList drawing(measure);
    drawing.Text({5, 6}, "on the map");
    for (const int channel : channels) {
      drawing.BeginStation({{}, channel, "QABC", "D"});
      drawing.EndStation();
    }
    return TextsOf(MapPage(state, data.Folder(), {drawing, {}, scanned}), kLetterLandscape);
  };
  EXPECT_EQ(texts({}, false), (std::vector<std::string>{"620 kHz    Home: Plano   TX  12.5 S, 96.54139 W",
                                                        "Stations of a test, 2026", "on the map"}));
  const auto title = [&](const std::vector<int>& channels, bool scanned) {
    const std::string text = texts(channels, scanned).at(0);
    return text.substr(0, text.find("    Home: "));
  };
  std::vector<int> band;
  for (int channel = 530; channel <= 1700; channel += 10) band.push_back(channel);
  EXPECT_EQ(title({620, 620}, false), "620 kHz");
  EXPECT_EQ(title({620, 630, 610, 630}, false), "620 kHz with 610, 630 kHz");
  EXPECT_EQ(title({610}, false), "620 kHz with 610 kHz") << "the hours chosen leave it no station";
  EXPECT_EQ(title({530, 540}, true), "530, 540 kHz") << "a scan that was stopped";
  EXPECT_EQ(title(band, true), "118 channels, 530 to 1700 kHz");
  EXPECT_EQ(title({}, true), "No stations");
  state.SelectedFrequency = 790;
  EXPECT_EQ(title({620, 790}, false), "790 kHz with 620 kHz");

  const DisplayList drawing(measure);
  EXPECT_EQ(MapPage(state, data.Folder(), {drawing, {}}).Name, "790 kHz Plano");
  EXPECT_EQ(MapPage(state, data.Folder(), {drawing, {}, true}).Name, "All stations Plano");
  state.HomeName.clear();
  EXPECT_EQ(OutlinePage(state, data.Folder()).Name, "Region 2");
}

TEST(PrintedPagesTest, ThePageHoldsAllThatTheWindowShows) {
  TestFolder data;
  const SessionState state;
  FixedMeasure measure;
  const DisplayList drawing(measure);
  for (const SheetArea shown : {SheetArea{}, SheetArea{-4000, 0, 20000, SheetHeight},
                                SheetArea{0, -3000, SheetWidth, SheetHeight + 6000}}) {
    const PrintedPage page = MapPage(state, data.Folder(), {drawing, shown});
    for (const PageSize size : {kLetterLandscape, kLetterPortrait, PageSize{22000, 16000}}) {
      const PagePane map = page.Layout(size).at(1);
      const SheetFit fit = FitSheet(map.Place.Width, map.Place.Height, map.Sheet);
      EXPECT_LE(fit.Scale, 1.0001F) << "text of 8 to 10 points gets no larger";
      const Point corner = fit.ToSurface({shown.Left, shown.Top});
      const Point opposite = fit.ToSurface({shown.Left + shown.Width, shown.Top + shown.Height});
      EXPECT_GE(corner.x, -1);
      EXPECT_GE(corner.y, -1);
      EXPECT_LE(opposite.x, map.Place.Width + 1);
      EXPECT_LE(opposite.y, map.Place.Height + 1);
      EXPECT_NEAR(corner.x + opposite.x, map.Place.Width, 2) << "in the middle";
      EXPECT_NEAR(map.Place.Top + map.Place.Height, size.Height, 20);
    }
  }
}

TEST(PrintedPagesTest, TheStationPageTellsTheRecordInWords) {
  TestFolder data;
  data.Put("Stations.txt", "Made of the FCC's lists");
  SessionState state;
  state.CurrentFrequency = 1230;
  state.HomeLatitude = 40;
  state.HomeLongitude = 75;
  const StationSelection selection = {"QABC", "SPRINGFIELD", "IL", "UNITED STATES", "N", 40, 80, .25F, 12};
  StationRecord record;
  record.HoursCode = "N";
  record.PowerKW = .25F;
  record.TowerCount = 12;
  for (std::size_t i = 1; i <= 12; ++i) {
    record.Switch[i] = "0";
    record.Fields[i] = 1;
    record.Heights[i] = 100 + static_cast<float>(i);
  }
  const PrintedPage page = StationPage(state, data.Folder(), selection, {record});
  for (const PageSize size : {kLetterPortrait, kLetterLandscape}) {
    const std::vector<std::string> texts = TextsOf(page, size);
    for (const char* words :
         {"QABC", "1230 kHz", "SPRINGFIELD", "nighttime (N)", "250 watts", "40 degrees north",
          "80 degrees west", "426.7 km, 271.6 deg", " 112 ", "Enlarged 5x"})
      EXPECT_EQ(std::count(texts.begin(), texts.end(), words), 1) << words;
    float bottom = 0;
    const std::vector<PagePane> panes = page.Layout(size);
    for (const PagePane& pane : panes) {
      bottom = std::max(bottom, pane.Place.Top + pane.Place.Height);
      EXPECT_LE(pane.Place.Left + pane.Place.Width, size.Width + 1);
    }
    EXPECT_LE(bottom, size.Height + 1);
  }
  RecordingCanvas canvas;
  for (const PagePane& pane : page.Layout(kLetterPortrait)) pane.Draw(canvas);
  const auto points = [&canvas](std::string_view text) {
    for (const Drawn& drawn : canvas.All("Text"))
      if (drawn.Text == text) return drawn.Face.Points;
    return 0.0F;
  };
  EXPECT_EQ(points("ratio"), 8) << "what is smaller cannot be read on paper";
  EXPECT_EQ(points("Made of the FCC's lists"), 8);
  EXPECT_GT(points("SPRINGFIELD"), 8);
  EXPECT_GT(points("Station data: QABC"), points("SPRINGFIELD"));

  const auto texts = TextsOf(StationPage(state, data.Folder(), selection, {}), kLetterPortrait);
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "No towers are known"), 1);

  EXPECT_EQ(page.Name, "QABC 1230 kHz");

  const PageSize small = LayoutSize(page, {5000, 8000});
  EXPECT_NEAR(small.Width / small.Height, 5000 / 8000.0, 1e-4);
  EXPECT_GE(small.Width, page.Smallest.Width - 1);
  EXPECT_GE(small.Height, page.Smallest.Height - 1);
}

/// Every two of the colours come out so that the eye tells them apart on paper: in greys well apart, or in
/// lines of clearly other widths.
void ExpectToldApart(const Recoloring& greys, const std::vector<ColorValue>& colors) {
  for (std::size_t i = 0; i < colors.size(); ++i) {
    const Ink ink = greys(colors[i]);
    const int level = ink.Color & 0xFF;
    EXPECT_EQ(ink.Color, level * 0x010101) << "no grey";
    EXPECT_LE(level, 0xC8) << "too light for white paper";
    for (std::size_t k = 0; k < i; ++k) {
      const Ink other = greys(colors[k]);
      const bool byLevel = std::abs(level - (other.Color & 0xFF)) >= 0x28;
      const bool byWidth = std::abs(std::log(ink.WidthFactor / other.WidthFactor)) >= std::log(1.45);
      EXPECT_TRUE(byLevel || byWidth) << std::hex << colors[i] << " and " << colors[k];
    }
  }
}

TEST(PrintedPagesTest, GreysTellTheHoursAndTheOutlinesApart) {
  SessionState state;
  const auto colors = [&state] {
    return std::vector<ColorValue>{state.DayColor,        state.NightColor,    state.CriticalColor,
                                   state.UnlimitedColor,  state.AdjacentColor, Palette::RegionOutline,
                                   Palette::StatesOutline};
  };
  ExpectToldApart(GreysOf(state), colors());
  std::vector<int> words;  // the legend's have no width
  for (const ColorValue hours :
       {state.DayColor, state.NightColor, state.CriticalColor, state.UnlimitedColor, state.AdjacentColor})
    words.push_back(GreysOf(state)(hours).Color & 0xFF);
  std::sort(words.begin(), words.end());
  for (std::size_t i = 1; i < words.size(); ++i) EXPECT_GE(words[i] - words[i - 1], 0x28);
  state.DayColor = 0x00FFFF;  // colours of the listener's own
  state.NightColor = 0x00FF00;
  state.AdjacentColor = 0;
  ExpectToldApart(GreysOf(state), colors());
  const Recoloring greys = GreysOf(state);
  EXPECT_EQ(greys(Palette::White).Color, Palette::White);
  EXPECT_LE(greys(0x00FFFE).Color & 0xFF, 0xC0) << "bright yellow is still to be seen";

  constexpr ColorValue kEnlarged = Palette::EnlargedTrace;
  const Recoloring station = StationPlotGreys();
  ExpectToldApart(station, {Palette::UnlimitedTrace, Palette::DayTrace, Palette::CriticalTrace,
                            Palette::NightTrace, kEnlarged});
  ExpectToldApart(station, {Palette::UnlimitedLegend, kEnlarged});  // as the others are named in their own
  for (const ColorValue faint : {Palette::Spoke, Palette::SpacingRing})
    ExpectToldApart(station, {faint, kEnlarged});
  EXPECT_LE(station(Palette::Tower).Color & 0xFF, 0x40) << "the towers are dark";
}

}  // namespace
}  // namespace kestrel
