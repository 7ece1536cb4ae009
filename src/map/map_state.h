#pragma once

#include <optional>

#include "map/map_view.h"

namespace quorvane {

struct GameSession;

/// `ClickMode`: what the next click on the map does.
inline constexpr int kOrdinaryClick = 0;
inline constexpr int kStartZoomBox = 1;
inline constexpr int kEndZoomBox = 2;

/// What is shown of a game: which part of the universe, how far a zoom has got, which planet is
/// selected, and whether there is a picture of the borders that can be used again.
struct MapState {
  MapView View;
  /// 1 from the moment the Zoom In button was honoured until it is released.
  int ZoomArmed = 0;
  int ClickMode = kOrdinaryClick;
  /// The open zoom box: its top left corner on the picture and its side, in surface units. The view
  /// is changed only once the box is complete.
  SurfacePoint BoxCorner;
  double BoxSide = 0;
  /// Stored position of the planet picked last; 0, 0: none.
  int SelectedX = 0;
  int SelectedY = 0;
  /// The number of the planet that is kept as a destination; 0: none.
  int Destination = 0;
  /// 1 while a finished picture of the influence borders is kept for reuse. Another game, other
  /// colours and another size of the picture set it to 0.
  int BordersCached = 0;

  /// The selected planet's stored position. None for a planet on the edge at 0, which the map never
  /// marks.
  std::optional<StoredPoint> Selected() const;
};

/// How every game is shown at first: the whole universe, nothing selected, no borders kept.
MapState FirstMapState(const GameSession& session);

/// Makes a planet the selected one.
/// @param planet its number; 0, or one that the game does not have: nothing is selected then
void SelectPlanet(MapState& state, const GameSession& session, int planet);

/// The number of the selected planet, the last one where several lie at its place; 0: none.
int SelectedPlanet(const MapState& state, const GameSession& session);

/// What a click on the map means.
enum class MapClick {
  Pick,          // of the planet that lies there
  BoxStarted,    // the zoom box has its corner there
  BoxUnchanged,  // the zoom box encloses less than a light year, and stays
  BoxEnded,      // the view shows now what the zoom box encloses
};

/// Takes a click, wherever it begins or ends a zoom box. The box's window begins at the place that
/// was clicked first.
MapClick ClickMap(MapState& state, SurfacePoint at);

/// Takes a move of the pointer: an open zoom box grows to the right and downwards, whichever way
/// the pointer goes. Without a game, and so without a scale, a light year is one unit, so that the
/// pointer's place can be told.
void MovePointer(MapState& state, SurfacePoint at);

/// Gives an open zoom box up: the next click starts another one.
/// @return false when none is open
bool GiveUpZoomBox(MapState& state);

/// The keys that move a zoomed map.
enum class ScrollKey { Left, Up, Right, Down };

/// Moves the window of a zoomed map by one step: a light year, or with modifier keys a quarter of
/// the scale times the mask. A move that would reach the universe's edge is not made at all.
/// @param shiftMask 1 Shift, 2 Ctrl, 4 Alt, added together
/// @return whether the map is to be drawn again: always, moved or not, unless it is not zoomed
bool ScrollView(MapState& state, ScrollKey key, int shiftMask);

}  // namespace quorvane
