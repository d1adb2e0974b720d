#include "map/PrintedPages.h"

#include <gtest/gtest.h>

#include <set>

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
  state.CurrentFrequency = 790;
  state.HomeLatitude = -12.5;
  FixedMeasure measure;
  DisplayList drawing(measure);
  drawing.SetColor(255);
  drawing.Line({1, 2}, {3, 4});
  drawing.Text({5, 6}, "on the map");
  const PrintedPage page = MapPage(state, data.Folder(), drawing);
  EXPECT_EQ(TextsOf(page, kLetterLandscape),
            (std::vector<std::string>{"790 kHz    Home: Plano   TX  12.5 S, 96.54139 W",
                                      "Stations of a test, 2026", "on the map"}));
  for (const PageSize size : {kLetterLandscape, kLetterPortrait, PageSize{22000, 16000}}) {
    const PagePane map = page.Layout(size).at(1);
    const SheetFit fit = FitSheet(map.Place.Width, map.Place.Height, map.Sheet);
    EXPECT_LE(fit.Scale, 1.0001F) << "text of 8 to 10 points gets no larger";
    EXPECT_LE(map.Sheet.Left, 0) << "the whole sheet is on the page";
    EXPECT_GE(map.Sheet.Left + map.Sheet.Width, SheetWidth);
    EXPECT_LE(map.Sheet.Top, 0);
    EXPECT_GE(map.Sheet.Top + map.Sheet.Height, SheetHeight);
    EXPECT_NEAR(map.Place.Top + map.Place.Height, size.Height, 1);
  }
}

TEST(PrintedPagesTest, TheStationPageTellsTheRecordInWords) {
  TestFolder data;
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
  EXPECT_NO_THROW(TextsOf(StationPage(state, data.Folder(), selection, {}), kLetterPortrait));

  const PageSize small = LayoutSize(page, {5000, 8000});
  EXPECT_NEAR(small.Width / small.Height, 5000 / 8000.0, 1e-4);
  EXPECT_GE(small.Width, page.Smallest.Width - 1);
  EXPECT_GE(small.Height, page.Smallest.Height - 1);
}

TEST(PrintedPagesTest, GreysTellTheHoursApart) {
  const SessionState state;
  const RecoloredCanvas::Mapping greys = GreysOf(state);
  std::set<std::pair<ColorValue, float>> inks;
  for (const ColorValue color : {state.DayColor, state.NightColor, state.CriticalColor, state.UnlimitedColor,
                                 state.AdjacentColor, ColorValue{0xCC8888}, ColorValue{0xDD9999}}) {
    const Ink ink = greys(color);
    EXPECT_EQ(ink.Color & 0xFF, ink.Color >> 8 & 0xFF);
    EXPECT_EQ(ink.Color & 0xFF, ink.Color >> 16 & 0xFF);
    inks.emplace(ink.Color, 0.0F);
  }
  EXPECT_EQ(inks.size(), 7U);
  EXPECT_EQ(greys(0xFFFFFF).Color, 0xFFFFFF);
  EXPECT_LE(greys(65535).Color & 0xFF, 0xC0) << "bright yellow is still to be seen";

  RecordingCanvas under;
  RecoloredCanvas canvas(under, greys);
  canvas.SetLineWidth(2);
  canvas.SetColor(state.UnlimitedColor);
  canvas.Line({0, 0}, {1, 1});
  canvas.SetColor(state.DayColor);
  canvas.Line({0, 0}, {1, 1});
  EXPECT_GT(under.List[0].LineWidth, 2);
  EXPECT_EQ(under.List[1].LineWidth, 2);
}

}  // namespace
}  // namespace kestrel
