#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/SessionState.h"
#include "data/DataFolder.h"
#include "data/StationLookup.h"
#include "map/DisplayList.h"
#include "map/Greys.h"
#include "map/Sheet.h"

// What stands where on a printed page. A page is a few panes, each a part of a sheet in a place of the page;
// text beside the drawings is laid out on the page itself.

namespace kestrel {

/// The size of a page inside its margins, twips.
struct PageSize {
  float Width = 0;
  float Height = 0;
};

/// A rectangle of the page that shows a part of a sheet, clipped to it.
struct PagePane {
  SheetArea Place;  ///< on the page, twips from its upper left corner inside the margins
  SheetArea Sheet;  ///< what is fitted into it, centred; what the place holds beyond shows more of the sheet
  std::function<void(Canvas&)> Draw;
  MapLook Look = {};
  Point Moved = {};  ///< how far the map was moved; panels of corners keep to where the sheet's were before
};

/// Whether there is room side by side for what stands one below the other on upright paper.
inline bool IsWide(PageSize paper) {
  return paper.Width > 1.25F * paper.Height;
}

/// One printed page.
struct PrintedPage {
  std::string Name;  ///< of the document, "1510 kHz Wichita": print queues show it, a file is offered by it
  bool Landscape = true;  ///< how it is offered first
  // On smaller paper the page is laid out in this size and shrunk.
  PageSize Smallest;
  PageSize SmallestWide;  ///< on paper that IsWide
  std::function<std::vector<PagePane>(PageSize)> Layout;
  Recoloring Greys;  ///< its colours on a black-and-white printer
};

/// The main map as its window has it.
struct ShownMap {
  const DisplayList& Drawing;
  SheetArea Area;        ///< of the sheet and beyond, as far as the window shows it
  bool Scanned = false;  ///< it began with the stations of a whole-band scan, not with the chosen channel
  MapLook Look = {};
  Point Moved = {};  ///< how far the window has moved the map
};

/// The channels that the map holds, "620 kHz with 610, 630 kHz": the chosen one before those drawn beside it.
std::string ChannelsOn(const ShownMap& map, const SessionState& state);

/// The main map as it was drawn and at least as far as it is shown, under its channels, home and the line
/// that says where the stations come from. The drawing must outlive the page.
PrintedPage MapPage(const SessionState& state, const DataFolder& folder, const ShownMap& map);

/// Coasts and borders around home at the session's scale, without stations.
PrintedPage OutlinePage(const SessionState& state, const DataFolder& folder);

/// A station's record in words, its polar plot, tower layout and tower table. `records` as LoadRecords gives
/// them.
PrintedPage StationPage(const SessionState& state, const DataFolder& folder,
                        const StationSelection& selection, const std::vector<StationRecord>& records);

/// The size a page of this paper is laid out in: the paper's own, or the smallest one widened to its shape.
PageSize LayoutSize(const PrintedPage& page, PageSize paper);

}  // namespace kestrel
