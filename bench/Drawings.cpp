#include <QImage>
#include <deque>
#include <functional>
#include <memory>
#include <random>

#include "Rows.h"
#include "Table.h"
#include "draw/Fonts.h"
#include "draw/LabelPlacement.h"
#include "draw/Renderer.h"
#include "map/BandScan.h"
#include "map/DisplayList.h"
#include "map/MainMap.h"
#include "map/MomentMap.h"
#include "map/Outlines.h"
#include "straight/Drawing.h"

namespace kestrel::bench {
namespace {

constexpr QSize kSize(1600, 1200);

/// The map as a first start shows it.
SessionState Session(float channel, bool adjacents) {
  SessionState state;
  state.CurrentFrequency = state.SelectedFrequency = channel;
  state.AdjacentsShown = adjacents ? 1 : 0;
  return state;
}

/// A map with nearly all of the outlines' vertices in view.
SessionState AllOfRegion2(SessionState state) {
  state.HomeLatitude = 9;
  state.HomeLongitude = 80;
  state.ScaleFactor = 50;
  state.PatternSize = 2;
  return state;
}

constexpr QSize kLargeSize(3840, 2160);

/// What a map surface keeps between drawings: the memory of the list and of the image, and the tools.
struct Surface {
  explicit Surface(QSize size = kSize) : Image(size, QImage::Format_RGB32) {}

  PlatformTextMeasure Measure;
  DisplayList List{Measure};
  Renderer Drawer;
  QImage Image;
  float Moved = 0;

  void Show() {
    Drawer.Draw(List, RulesFor(Image.rect()), Image);
    Keep(Image.constBits());
  }

  /// The next frame while the map is dragged.
  void Drag() {
    SurfaceRules rules = RulesFor(Image.rect());
    rules.Frame = rules.Area;
    Moved = Moved > 3000 ? 0 : Moved + 70;
    MoveSheet(rules, {Moved, -Moved / 2});
    Drawer.Draw(List, rules, Image);
    Keep(Image.constBits());
  }
};

Surface& TheSurface() {
  static Surface surface;
  return surface;
}

Surface& LargeSurface() {
  static Surface surface(kLargeSize);
  return surface;
}

void RedrawOn(Surface& surface, const Band& band, const SessionState& state) {
  surface.List.Clear();
  DrawMainMap(surface.List, DataFolder(QString::fromStdString(band.Folder)), state);
  surface.Show();
}

void Redraw(const Band& band, const SessionState& state) {
  RedrawOn(TheSurface(), band, state);
}

void ListScan(DisplayList& list, const Band& band, const SessionState& state) {
  list.Clear();
  const DataFolder folder(QString::fromStdString(band.Folder));
  const MapProjection projection(state.Home(), state.ScaleFactor);
  DrawOutlineFiles(list, folder, projection);
  for (BandScan scan(folder, projection); !scan.AtEnd();) static_cast<void>(scan.DrawNext(list));
}

void Scan(const Band& band, const SessionState& state) {
  ListScan(TheSurface().List, band, state);
  TheSurface().Show();
}

/// The list of a drawing, made once; the measure outlives it.
DisplayList& KeptList(const std::function<void(DisplayList&)>& draw) {
  static const PlatformTextMeasure measure;
  static std::deque<DisplayList> lists;
  draw(lists.emplace_back(measure));
  return lists.back();
}

void AddPlacingRow(const std::string& work, double milliseconds, const DisplayList& list) {
  AddRow("placing the labels of " + work, {0, milliseconds, false}, [&list] {
    LabelPlacement placement;
    placement.PlaceAll(list, RulesFor(QRect({0, 0}, kSize)));
    Keep(placement.Places().data());
  });
}

void AddThousandLabelsRow() {
  AddPlacingRow("1,000 stations", 1, KeptList([](DisplayList& list) {
                  std::mt19937 random(1);
                  std::uniform_real_distribution<float> across(0, SheetWidth), down(0, SheetHeight);
                  for (int i = 0; i < 1000; ++i)
                    list.Label({{across(random), down(random)}, "1490 QABC" + std::to_string(i), true, 1});
                }));
}

void AddDragRow(const std::string& size, Surface& surface, const Band& band, const SessionState& state,
                const Asked& asked) {
  AddRow(
      "a frame of a drag, 400 records, " + size + ", " + band.Name, "whole redraw", asked,
      [=, &surface] {
        if (surface.List.IsEmpty()) RedrawOn(surface, band, state);
        surface.Drag();
      },
      [=, &surface] { RedrawOn(surface, band, state); });
}

/// A minute of a summer night and on, five minutes at a time.
Moment NextStep() {
  static Moment moment = std::chrono::sys_days(std::chrono::year(2026) / 6 / 21);
  return moment += std::chrono::minutes(5);
}

/// A map of its own, read once, on a picture of that size.
struct MovingMap {
  PlatformTextMeasure Measure;
  DisplayList List{Measure};
  MomentMap Map{Measure};
  Renderer Drawer;
  QImage Image;

  MovingMap(const Band& band, const SessionState& state, QSize size) : Image(size, QImage::Format_RGB32) {
    Map.Read(DataFolder(QString::fromStdString(band.Folder)), state);
  }
  void Step() {
    List.Clear();
    Map.Draw(List, NextStep(), HoursRule::Auto);
    Drawer.Draw(List, RulesFor(Image.rect()), Image);
    Keep(Image.constBits());
  }
};

void AddTimeRow(const Band& band, QSize size, double milliseconds) {
  const SessionState state = Session(ChannelOf(band, 100'000, false), false);
  const auto map = std::make_shared<MovingMap>(band, state, size);
  AddRow(
      "a step of the time slider at " + std::to_string(static_cast<int>(state.CurrentFrequency)) + " kHz, " +
          std::to_string(size.width()) + " wide, " + band.Name,
      "read and drawn from nothing", {0, milliseconds, true}, [map] { map->Step(); },
      [=] { MovingMap(band, state, size).Step(); });
}

void AddRedrawRow(const std::string& work, const Band& band, const SessionState& state, const Asked& asked) {
  AddRow(
      "whole redraw, " + work + " at " + std::to_string(static_cast<int>(state.CurrentFrequency)) + " kHz, " +
          band.Name,
      "straight code", asked, [=] { Redraw(band, state); },
      [=] { straight::DrawMainMap(TheSurface().Image, band.Folder, state); });
}

}  // namespace

void AddDrawingRows(const Band& band) {
  AddRedrawRow("400 records", band, Session(ChannelOf(band, 400, false), false), {15, 16.7, true});
  AddRedrawRow("400 records and all of Region 2", band,
               AllOfRegion2(Session(ChannelOf(band, 400, false), false)), {0, 16.7, true});
  AddRedrawRow("with both adjacents", band, Session(ChannelOf(band, 100'000, true), true), {8, 33, true});
  AddTimeRow(band, kSize, 16.7);
  AddTimeRow(band, {3840, 2160}, 33.3);
  const SessionState state = Session(ChannelOf(band, 400, false), false);
  AddDragRow("1600x1200", TheSurface(), band, state, {0, 16.7, true});
  AddDragRow("3840x2160", LargeSurface(), band, state, {0, 16.7, true});
  if (band.Name == Bands().front().Name) AddThousandLabelsRow();
  AddPlacingRow("the whole-band scan, " + band.Name, 12,
                KeptList([&](DisplayList& list) { ListScan(list, band, Session(1230, false)); }));
  AddRow(
      "whole-band scan, " + band.Name, "straight code", {8, 45, true},
      [=] { Scan(band, Session(1230, false)); },
      [=] { straight::DrawScan(TheSurface().Image, band.Folder, Session(1230, false)); });
}

}  // namespace kestrel::bench
