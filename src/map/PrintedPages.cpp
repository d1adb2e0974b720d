#include "map/PrintedPages.h"

#include <algorithm>
#include <array>
#include <set>

#include "core/Hours.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "data/PlaceLists.h"
#include "data/TowerTable.h"
#include "map/MapProjection.h"
#include "map/Outlines.h"
#include "map/StationPlot.h"
#include "map/StationTip.h"

namespace kestrel {
namespace {

constexpr Font kHeadFont = {FontFace::SansBold, 10};
constexpr Font kTableFont = {FontFace::SansBold, 9};
constexpr Font kTextFont = {FontFace::Sans, 9};
constexpr Font kSmallFont = {FontFace::Sans, 8};
constexpr float kLine = 250;  // from line to line
constexpr PageSize kSmallestMap = {9000, 7500};
constexpr PageSize kSmallestStation = {9600, 10800};
constexpr PageSize kSmallestWideStation = {13500, 7200};

/// A pane that is a part of the page itself, drawn at its true size.
PagePane TextPane(const SheetArea& place, std::function<void(Canvas&)> draw) {
  return {place, {0, 0, place.Width, place.Height}, std::move(draw)};
}

std::string HomePlace(const SessionState& state) {
  const auto degrees = [](float value, const char* positive, const char* negative) {
    return NumberText(value < 0 ? -value : value) + (value < 0 ? negative : positive);
  };
  return state.HomeName + "  " + degrees(state.HomeLatitude, " N", " S") + ", " +
         degrees(state.HomeLongitude, " W", " E");
}

/// "530, 540 kHz"; many channels as "118 channels, 530 to 1700 kHz".
std::string ChannelsText(const std::set<int>& channels) {
  constexpr std::size_t kMostNamed = 6;
  if (channels.empty()) return "No stations";
  if (channels.size() > kMostNamed)
    return std::to_string(channels.size()) + " channels, " + std::to_string(*channels.begin()) + " to " +
           std::to_string(*channels.rbegin()) + " kHz";
  std::string text;
  for (const int channel : channels) text += (text.empty() ? "" : ", ") + std::to_string(channel);
  return text + " kHz";
}

/// "1510 kHz Wichita", after the city of home; without a name the first words alone.
std::string DocumentName(const std::string& what, const SessionState& state) {
  const std::string city(Trim(SplitPlaceName(state.HomeName).first));
  return city.empty() ? what : what + ' ' + city;
}

std::string ChosenChannel(const SessionState& state) {
  return NumberText(state.SelectedFrequency > 0 ? state.SelectedFrequency : state.CurrentFrequency) + " kHz";
}

/// The area shown, or more of the map around it where the place is larger, so that text keeps its 8 to 10
/// points.
SheetArea MapIn(const SheetArea& place, const SheetArea& shown) {
  const float width = std::max(shown.Width, place.Width);
  const float height = std::max(shown.Height, place.Height);
  return {shown.Left - (width - shown.Width) / 2, shown.Top - (height - shown.Height) / 2, width, height};
}

constexpr std::size_t kMapPane = 1;

/// A title over the framed map.
std::vector<PagePane> TitledMap(PageSize page, const std::string& title, const std::string& source,
                                const SheetArea& shown, std::function<void(Canvas&)> draw) {
  constexpr float kTitleHeight = 2 * kLine + 60;
  constexpr float kHair = 8;  // keeps the frame's line off the paper's edge, and the map inside the frame
  const SheetArea frame = {0, kTitleHeight, page.Width, page.Height - kTitleHeight};
  const SheetArea inside = {frame.Left + 2 * kHair, frame.Top + 2 * kHair, frame.Width - 4 * kHair,
                            frame.Height - 4 * kHair};
  std::vector<PagePane> panes;
  panes.push_back(TextPane({0, 0, page.Width, kTitleHeight}, [title, source](Canvas& canvas) {
    canvas.SetColor(Palette::Text);
    canvas.SetFont(kHeadFont);
    canvas.Text({0, 0}, title);
    canvas.SetFont(kSmallFont);
    canvas.Text({0, kLine}, source);
  }));
  panes.push_back({inside, MapIn(inside, shown), std::move(draw)});
  panes.push_back(TextPane(frame, [frame](Canvas& canvas) {
    canvas.SetColor(Palette::Text);
    canvas.Box({kHair, kHair}, {frame.Width - kHair, frame.Height - kHair});
  }));
  return panes;
}

struct LabelledValue {
  std::string Label;
  std::string Value;
};

/// "night (N)"; a code that is none of the four as it stands.
std::string HoursText(const std::string& code) {
  const std::string word = HoursWord(code);
  return word == code ? code : word + " (" + code + ')';
}

/// What the record says, a label and a value a line.
std::vector<LabelledValue> StationWords(const SessionState& state, const StationSelection& selection) {
  const auto degrees = [](float value, const char* positive, const char* negative) {
    return NumberText(value < 0 ? -value : value) + " degrees " + (value < 0 ? negative : positive);
  };
  return {{"Call sign", selection.SelectedCallSign},
          {"Frequency", NumberText(state.CurrentFrequency) + " kHz"},
          {"City", selection.City},
          {"State", selection.State == "-" ? "" : selection.State},
          {"Country", selection.Country},
          {"Hours", HoursText(selection.SelectedHoursCode)},
          {"Power", PowerText(selection.PowerKW)},
          {"Latitude", degrees(selection.Latitude, "north", "south")},
          {"Longitude", degrees(selection.Longitude, "west", "east")},
          {"Towers", std::to_string(selection.SelectedTowerCount)},
          {"From home", FromHomeText(state, selection.Latitude, selection.Longitude)},
          {"Home", HomePlace(state)}};
}

PagePane WordsPane(const SheetArea& place, const SessionState& state, const StationSelection& selection,
                   const std::string& source) {
  return TextPane(place, [words = StationWords(state, selection), selection, source](Canvas& canvas) {
    constexpr float kValueLeft = 1300;
    float top = 1.5F * kLine;
    canvas.SetColor(Palette::Text);
    canvas.SetFont(kHeadFont);
    canvas.Text({0, 0}, "Station data: " + selection.SelectedCallSign);
    canvas.SetFont(kTextFont);
    for (const auto& [label, value] : words) {
      canvas.Text({0, top}, label);
      canvas.Text({kValueLeft, top}, value);
      top += kLine;
    }
    canvas.SetFont(kSmallFont);
    canvas.Text({0, top + kLine / 4}, source);
  });
}

PagePane TablePane(const SheetArea& place, std::vector<TowerRow> rows) {
  return TextPane(place, [rows = std::move(rows)](Canvas& canvas) {
    static constexpr std::array<const char*, TowerColumns> kUnits = {"ratio",   "degrees",  "degrees",
                                                                     "degrees", "deg true", ""};
    constexpr float kNumberWidth = 660;
    constexpr float kColumn = 1120;
    canvas.SetColor(Palette::Text);
    canvas.SetFont(kTableFont);
    canvas.Text({0, 0}, "Tower");
    const auto left = [](std::size_t column) {
      return kNumberWidth + 100 + kColumn * static_cast<float>(column);
    };
    for (std::size_t i = 0; i < TowerColumns; ++i) canvas.Text({left(i), 0}, TowerHeads[i]);
    canvas.SetFont(kSmallFont);
    for (std::size_t i = 0; i < TowerColumns; ++i) canvas.Text({left(i), kLine}, kUnits[i]);
    canvas.SetFont(kTextFont);
    if (rows.empty()) canvas.Text({0, 2 * kLine}, "No towers are known");
    for (std::size_t row = 0; row < rows.size(); ++row) {
      const float top = kLine * static_cast<float>(row + 2);
      canvas.Text({0, top}, ' ' + std::to_string(row + 1));
      for (std::size_t i = 0; i < TowerColumns; ++i) canvas.Text({left(i), top}, rows[row][i]);
    }
  });
}

}  // namespace

std::string ChannelsOn(const ShownMap& map, const SessionState& state) {
  std::set<int> channels;
  for (const StationMark& mark : map.Drawing.Stations()) channels.insert(mark.Channel);
  if (map.Scanned) return ChannelsText(channels);
  const float chosen = state.SelectedFrequency > 0 ? state.SelectedFrequency : state.CurrentFrequency;
  std::erase_if(channels, [chosen](int channel) { return static_cast<float>(channel) == chosen; });
  const std::string text = NumberText(chosen) + " kHz";
  return channels.empty() ? text : text + " with " + ChannelsText(channels);
}

PrintedPage MapPage(const SessionState& state, const DataFolder& folder, const ShownMap& map) {
  const std::string title = ChannelsOn(map, state) + "    Home: " + HomePlace(state);
  const std::string source = folder.StationsLine();
  const auto layout = [title, source, map](PageSize page) {
    std::vector<PagePane> panes = TitledMap(
        page, title, source, map.Area, [&drawing = map.Drawing](Canvas& canvas) { drawing.Play(canvas); });
    PagePane& pane = panes[kMapPane];
    pane.Look = map.Look;
    pane.Moved = map.Moved;
    return panes;
  };
  return {DocumentName(map.Scanned ? "All stations" : ChosenChannel(state), state),
          true,
          kSmallestMap,
          kSmallestMap,
          layout,
          GreysOf(state)};
}

PrintedPage OutlinePage(const SessionState& state, const DataFolder& folder) {
  const MapProjection projection(state.Home(), state.ScaleFactor);
  const auto layout = [projection, &folder, title = "Region 2    Home: " + HomePlace(state)](PageSize page) {
    return TitledMap(page, title, {}, {},
                     [projection, &folder](Canvas& canvas) { DrawOutlineFiles(canvas, folder, projection); });
  };
  return {DocumentName("Region 2", state), true, kSmallestMap, kSmallestMap, layout, GreysOf(state)};
}

PrintedPage StationPage(const SessionState& state, const DataFolder& folder,
                        const StationSelection& selection, const std::vector<StationRecord>& records) {
  StationSelection shown = selection;
  if (!records.empty()) shown.PowerKW = records.back().PowerKW;
  const std::vector<TowerRow> rows = records.empty() ? std::vector<TowerRow>{} : TowerTable(records.back());
  const auto layout = [&state, shown, rows, records, source = folder.StationsLine()](PageSize page) {
    constexpr float kWordsHeight = 15 * kLine;
    constexpr float kTableHeight = (MaxTowers + 2) * kLine;
    constexpr float kTableWidth = 7600;
    constexpr float kGap = 300;
    const auto drawPlot = [&state, records](Canvas& canvas) {
      DrawStationPlot(canvas, state.AspectRatio, records);
    };
    const bool wide = IsWide(page);  // words and table stand side by side
    const float fitting = page.Width * StationPlotArea.Height / StationPlotArea.Width;
    const float left = page.Height - kWordsHeight - (wide ? kGap : kTableHeight + 2 * kGap);
    const SheetArea plot = {0, kWordsHeight + kGap / 2, page.Width,
                            std::min({fitting, left, StationPlotArea.Height})};
    const SheetArea table = wide ? SheetArea{page.Width - kTableWidth, 0, kTableWidth, kTableHeight}
                                 : SheetArea{0, plot.Top + plot.Height + kGap, page.Width, kTableHeight};
    const SheetArea words = {0, 0, wide ? table.Left - kGap : page.Width, kWordsHeight};
    // The plot first: its enlarged trace leaves white lines far outside the plot box.
    return std::vector<PagePane>{
        {plot, StationPlotArea, drawPlot}, WordsPane(words, state, shown, source), TablePane(table, rows)};
  };
  return {selection.SelectedCallSign + ' ' + NumberText(state.CurrentFrequency) + " kHz",
          false,
          kSmallestStation,
          kSmallestWideStation,
          layout,
          StationPlotGreys()};
}

PageSize LayoutSize(const PrintedPage& page, PageSize paper) {
  const PageSize& smallest = IsWide(paper) ? page.SmallestWide : page.Smallest;
  const float growth = std::max({1.0F, smallest.Width / paper.Width, smallest.Height / paper.Height});
  return {paper.Width * growth, paper.Height * growth};
}

}  // namespace kestrel
