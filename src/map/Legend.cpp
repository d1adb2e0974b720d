#include "map/Legend.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <vector>

#include "core/Hours.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "map/ChannelPlot.h"
#include "map/Labels.h"

namespace kestrel {
namespace {

constexpr Font kLegendFont = {FontFace::Sans, 10};
constexpr float kTextLeft = 500;
constexpr float kBoxLeft = 200;
constexpr float kMargin = 200;  // between a text's end and its box's

struct LegendLine {
  float Top;
  ColorValue Color;
  std::string Text;
};

/// The line of hours, and the words beside it.
struct HoursLine {
  float Top;
  ColorValue Color;
  const char* Text;
  float Width;
  Dash Broken;
};

/// A white box under lines of text, at least `right` wide.
void DrawLines(Canvas& canvas, float top, float bottom, float right, std::span<const LegendLine> lines) {
  for (const LegendLine& line : lines)
    right = std::max(right, kTextLeft + canvas.TextWidth(line.Text) + kMargin);
  canvas.SetColor(Palette::White);
  canvas.FilledBox({kBoxLeft, top}, {right, bottom});
  for (const LegendLine& line : lines) {
    canvas.SetColor(line.Color);
    canvas.Text({kTextLeft, line.Top}, line.Text);
  }
}

void DrawHours(Canvas& canvas, std::span<const HoursLine> lines) {
  std::vector<LegendLine> words;
  for (const HoursLine& line : lines) words.push_back({line.Top, ReadableOnWhite(line.Color), line.Text});
  DrawLines(canvas, 6800, 8080, 1900, words);
  for (const HoursLine& line : lines) {
    const float middle = line.Top + canvas.TextHeight() / 2;
    canvas.SetColor(line.Color);
    canvas.SetLineWidth(line.Width);
    canvas.SetDash(line.Broken);
    canvas.Line({kBoxLeft + 30, middle}, {kTextLeft - 60, middle});
  }
  canvas.SetDash(Dash::None);
}

void DrawScales(Canvas& canvas, const SessionState& state, std::optional<Moment> moment) {
  constexpr float kTop = 8780;
  constexpr float kPatternLeft = 1700;
  const std::string map = "Map:" + MapScaleText(state.ScaleFactor);
  const std::string hours = moment ? MomentText(*moment) : std::string(FilterWord(state.HoursFilter));
  const std::string pattern = "Pattern:" + PatternScaleText(state.PatternSize) + "  " + hours;
  const float patternLeft = std::max(kPatternLeft, kTextLeft + canvas.TextWidth(map) + kMargin / 2);

  canvas.SetColor(Palette::White);
  canvas.FilledBox({kBoxLeft, 8800},
                   {std::max(3200.0F, patternLeft + canvas.TextWidth(pattern) + kMargin), 9400});
  canvas.SetColor(Palette::Text);
  canvas.Text({kTextLeft, kTop}, map);
  canvas.Text({patternLeft, kTop}, pattern);
}

/// The value against `unit`, cut to three decimals and then to 7 characters. The quotient is stored as a
/// single, so that a value of which a whole number was meant, such as .02 against .25, is not cut to the one
/// below it.
std::string ScaleText(double value, double unit) {
  const double thousandths = std::floor(static_cast<float>(value * 1000 / unit));
  return std::string(Columns(NumberText(static_cast<float>(thousandths / 1000)), 1, 7));
}

}  // namespace

std::string MapScaleText(float scaleFactor) {
  return ScaleText(scaleFactor, 156.25);
}

std::string PatternScaleText(float patternSize) {
  return ScaleText(patternSize, 0.25);
}

void DrawLegend(Canvas& canvas, const SessionState& state, std::optional<Moment> moment) {
  const float frequency = state.SelectedFrequency > 0 ? state.SelectedFrequency : state.CurrentFrequency;
  const auto line = [](float top, ColorValue color, const char* words, Hours hours) {
    return HoursLine{top, color, words, PatternLineWidth, DashOf(hours)};
  };
  const std::array hours = {HoursLine{6860, state.AdjacentColor, "Adjacents", 1, Dash::None},
                            line(7100, state.UnlimitedColor, "Unlimited", Hours::Unlimited),
                            line(7340, state.DayColor, "Daytime", Hours::Daytime),
                            line(7580, state.CriticalColor, "Critical", Hours::Critical),
                            line(7820, state.NightColor, "Nighttime", Hours::Nighttime)};
  const std::array places = {LegendLine{8060, Palette::Text, "Frequency: " + NumberText(frequency) + " kHz"},
                             LegendLine{8300, Palette::Text,
                                        "Home Lat: " + NumberText(state.HomeLatitude) +
                                            "    Home Lon: " + NumberText(state.HomeLongitude)},
                             LegendLine{8540, Palette::Text, "Home:  " + state.HomeName}};

  canvas.BeginLayer(MapLayer::Legend);
  canvas.BeginPanel({kBoxLeft, 9400}, kLegendFont, PanelPlace::LowerLeft);
  canvas.SetFont(kLegendFont);
  DrawHours(canvas, hours);
  DrawLines(canvas, 8080, 8800, 4500, places);
  DrawScales(canvas, state, moment);
  canvas.EndPanel();
  canvas.EndLayer();
}

void DrawHoursBanner(Canvas& canvas, HoursFilter filter) {
  if (filter != HoursFilter::Day && filter != HoursFilter::Night) return;
  const std::string text = filter == HoursFilter::Day ? "    Day, critical & unlimited only"
                                                      : "    Night, critical & unlimited only";
  canvas.BeginPanel({1230, 30}, kLegendFont, PanelPlace::UpperLeft);
  canvas.SetFont(kLegendFont);
  canvas.SetColor(Palette::NoticePaper);
  canvas.FilledBox({1230, 30}, {std::max(4600.0F, 1230 + canvas.TextWidth(text) + kMargin), 360});
  canvas.SetColor(Palette::Text);
  canvas.Text({1230, 60}, text);
  canvas.EndPanel();
}

void DrawMissingFileNotice(Canvas& canvas, float frequency) {
  const std::string text = "    No station file for " + NumberText(frequency) + " kHz";
  canvas.BeginPanel({1230, 30}, kLegendFont, PanelPlace::UpperLeft);
  canvas.SetFont(kLegendFont);
  canvas.SetColor(Palette::NoticePaper);
  canvas.FilledBox({1230, 400}, {std::max(4600.0F, 1230 + canvas.TextWidth(text) + kMargin), 730});
  canvas.SetColor(Palette::Text);
  canvas.Text({1230, 430}, text);
  canvas.EndPanel();
}

}  // namespace kestrel
