#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/Moment.h"
#include "field/HoursInForce.h"
#include "forms/Workspace.h"
#include "map/Canvas.h"
#include "map/MainMap.h"

class QAction;
class QTimer;

namespace kestrel {

class MapSurface;
class SideSplitter;
class StationList;
class ViewMenu;

/// The list of stations beside the main map. A row chosen is ringed on the map, a station clicked on the map
/// is chosen in the list.
class PlotList final : public QObject {
 public:
  /// Takes the map into Area(), and puts its commands into the menu. Closed at first.
  PlotList(const Workspace& workspace, MapSurface& map, ViewMenu& menu, QWidget& window);

  /// Map and list, to be laid out.
  QWidget& Area();
  QWidget& Panel();
  void FocusRows();

  /// The moment for which stations are ranked; the clock's at first. Call Rerank when it has changed.
  std::function<Moment()> MomentShown;
  /// Looks a station of the session's channel up.
  std::function<void(const std::string& callSign)> LookupAsked;
  /// Makes a channel the session's and draws it.
  std::function<void(float frequency)> ChannelAsked;
  /// Called when the rule of the hours, or the station chosen, may have changed.
  std::function<void()> Changed;

  HoursRule Rule() const;
  std::optional<Position> ChosenPlace() const;

  /// Opens or closes the list.
  void SetOpen(bool open);
  bool IsOpen() const;

  /// Call when the main map has been drawn, or a channel on top of it.
  void MapDrawn(MapGround ground);

  /// The list for another moment; nothing is read.
  void Rerank();

  /// While it rests, nothing in it can lead to another channel.
  void SetResting(bool resting);

  /// What a click on a station means to an open list: its row. Returns whether it was news.
  bool TakeClick(const StationMark& mark);

  /// What the stations of the marks, the first few of them, bring home: a line feed and a line for each, with
  /// its call where they are several.
  QString FieldLines(const std::vector<StationMark>& marks) const;

  /// Opens the list and looks for the text in the whole band.
  void FindInBand(const QString& text);

 private:
  void AddCommands(ViewMenu& menu);
  void MakeList();
  void TellChanged();
  QString FieldLine(const StationMark& mark) const;
  void TurnBand();
  void Say();

  Workspace workspace_;
  MapSurface& map_;
  SideSplitter* area_;
  QWidget* panel_;  // of the list, which is made when it is opened first
  StationList* list_ = nullptr;
  QAction* open_ = nullptr;
  std::vector<QAction*> commands_;  // that rest
  QTimer* minute_;
  std::vector<float> channels_;  // on the map
  std::optional<Position> chosen_;
};

}  // namespace kestrel
