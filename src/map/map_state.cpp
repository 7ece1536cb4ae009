#include "map/map_state.h"

#include <cmath>

#include "model/game_session.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

int ScrollStep(double mapScale, int shiftMask) {
  // Rounded once, behind the mask: 2.5 with Ctrl is a step of 5, not two of 2.
  const int step = ToWhole16((mapScale / 4) * shiftMask);
  return step == 0 ? 1 : step;
}

// Moves one pair of window edges; `step` is negative towards the universe's left or upper edge.
void MoveEdges(int& low, int& high, int step, int universeExtent) {
  const bool isAllowed = step < 0 ? low + step > 0 : high + step < universeExtent - kUniverseOrigin;
  if (!isAllowed) return;
  low += step;
  high += step;
}

// Shows the window that the zoom box encloses. Its corners are whole light years.
bool ShowZoomBox(MapState& state) {
  MapView& view = state.View;
  const int xMin = ToWhole16(state.BoxCorner.X / view.MapScale) + view.ViewXMin;
  const int yMin = ToWhole16(state.BoxCorner.Y / view.MapScale) + view.ViewYMin;
  // The corner is part of what is rounded: half a light year goes to the even edge, so that it
  // depends on the corner whether it counts.
  const int xMax = ToWhole16(state.BoxSide / view.MapScale + xMin);
  const int yMax = ToWhole16(state.BoxSide / view.MapScale + yMin);
  if (xMax <= xMin) return false;
  view.ViewXMin = xMin;
  view.ViewXMax = xMax;
  view.ViewYMin = yMin;
  view.ViewYMax = yMax;
  view.MapScale = kMapUnits / (xMax - xMin);
  return true;
}

}  // namespace

std::optional<StoredPoint> MapState::Selected() const {
  if (SelectedX == 0 || SelectedY == 0) return std::nullopt;
  return StoredPoint{static_cast<double>(SelectedX), static_cast<double>(SelectedY)};
}

MapState FirstMapState(const GameSession& session) {
  MapState state;
  state.View.ShowAll(session.UniverseExtent);
  return state;
}

void SelectPlanet(MapState& state, const GameSession& session, int planet) {
  const bool exists = planet > 0 && planet <= session.PlanetCount;
  state.SelectedX = exists ? session.Planet(planet).X() : 0;
  state.SelectedY = exists ? session.Planet(planet).Y() : 0;
}

int SelectedPlanet(const MapState& state, const GameSession& session) {
  if (!state.Selected()) return 0;
  for (int number = session.PlanetCount; number > 0; --number) {
    const PlanetRecord& planet = session.Planet(number);
    if (planet.X() == state.SelectedX && planet.Y() == state.SelectedY) return number;
  }
  return 0;
}

MapClick ClickMap(MapState& state, SurfacePoint at) {
  if (state.ClickMode == kOrdinaryClick) return MapClick::Pick;
  if (state.ClickMode == kStartZoomBox) {
    state.BoxCorner = at;
    state.BoxSide = 1;
    state.ClickMode = kEndZoomBox;
    return MapClick::BoxStarted;
  }
  if (!ShowZoomBox(state)) return MapClick::BoxUnchanged;
  state.ClickMode = kOrdinaryClick;
  return MapClick::BoxEnded;
}

void MovePointer(MapState& state, SurfacePoint at) {
  if (state.View.MapScale == 0) state.View.MapScale = 1;
  if (state.ClickMode == kEndZoomBox) state.BoxSide = std::fabs(at.X - state.BoxCorner.X);
}

bool GiveUpZoomBox(MapState& state) {
  if (state.ClickMode != kEndZoomBox) return false;
  state.ClickMode = kStartZoomBox;
  return true;
}

bool ScrollView(MapState& state, ScrollKey key, int shiftMask) {
  if (state.ZoomArmed == 0) return false;
  MapView& view = state.View;
  const int step = ScrollStep(view.MapScale, shiftMask);
  switch (key) {
    case ScrollKey::Left:
      MoveEdges(view.ViewXMin, view.ViewXMax, -step, view.UniverseExtent);
      break;
    case ScrollKey::Up:
      MoveEdges(view.ViewYMin, view.ViewYMax, -step, view.UniverseExtent);
      break;
    case ScrollKey::Right:
      MoveEdges(view.ViewXMin, view.ViewXMax, step, view.UniverseExtent);
      break;
    case ScrollKey::Down:
      MoveEdges(view.ViewYMin, view.ViewYMax, step, view.UniverseExtent);
      break;
  }
  return true;
}

}  // namespace quorvane
