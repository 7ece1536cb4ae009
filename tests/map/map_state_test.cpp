#include "map/map_state.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <tuple>

#include "map/planets_in_view.h"
#include "map/redraw.h"
#include "map/selection_marker.h"
#include "support/game_builder.h"
#include "support/map_views.h"

namespace quorvane {
namespace {

std::array<int, 4> EdgesOf(const MapView& view) {
  return {view.ViewXMin, view.ViewXMax, view.ViewYMin, view.ViewYMax};
}

TEST(MapView, DotSizeGrowsWithHalfTheZoomTiesToEven) {
  const std::pair<int, int> cases[] = {{1, 1}, {2, 1}, {3, 2}, {5, 2}, {6, 3}, {7, 4}, {9, 4}};
  for (const auto& [zoom, dotSize] : cases) {
    EXPECT_EQ(Zoomed(0, 0, 2000 / zoom).DotSize(), dotSize) << "zoom " << zoom;
  }
}

OverlaySwitches On(std::initializer_list<OverlayKind> kinds) {
  OverlaySwitches switches;
  for (const OverlayKind kind : kinds) switches.Set(kind, true);
  return switches;
}

TEST(SettleSwitches, ArmsAZoomOnceAndKeepsTheViewUntilTheButtonIsReleased) {
  MapState state = {.View = FullView()};
  Redraw redraw = SettleSwitches(On({OverlayKind::ZoomIn, OverlayKind::QvlDrawing}), state);
  EXPECT_TRUE(!redraw.IsDue && redraw.StopsDrawing() && !redraw.ReadsDrawing() &&
              !redraw.IsFullView);
  EXPECT_EQ(state.ClickMode, kStartZoomBox);
  state.View = Zoomed(300, 400, 200);
  state.ClickMode = kEndZoomBox;
  redraw = SettleSwitches(On({OverlayKind::ZoomIn, OverlayKind::QvlDrawing}), state);
  EXPECT_TRUE(redraw.IsDue && !redraw.StopsDrawing() && redraw.ReadsDrawing() &&
              !redraw.IsFullView);
  EXPECT_EQ(state.ClickMode, kEndZoomBox);
  EXPECT_EQ(EdgesOf(state.View), EdgesOf(Zoomed(300, 400, 200)));

  redraw = SettleSwitches({}, state);
  EXPECT_TRUE(redraw.IsDue && redraw.StopsDrawing() && redraw.IsFullView);
  EXPECT_EQ(state.ClickMode, kOrdinaryClick);
  EXPECT_EQ(state.View.MapScale, 10);
  EXPECT_FALSE(SettleSwitches(On({OverlayKind::ZoomIn}), state).IsDue) << "again";
}

TEST(SettleSwitches, ClearMapTurnsAllOffButTheZoom) {
  MapState state = {.View = Zoomed(300, 400, 200), .ZoomArmed = 1};
  const OverlaySwitches zoom = On({OverlayKind::ZoomIn});
  const auto all = {OverlayKind::ZoomIn, OverlayKind::ClearMap, OverlayKind::QvlDrawing};
  const Redraw redraw = SettleSwitches(On(all), state);
  EXPECT_TRUE(redraw.Switches == zoom && !redraw.ReadsDrawing());
}

TEST(SelectPlanet, KeepsItsStoredPlaceOrNone) {
  const GameSession session = GameBuilder().Planet("Alpha", {1500, 1600}).Build();
  MapState state;
  SelectPlanet(state, session, 1);
  EXPECT_EQ(std::pair(state.SelectedX, state.SelectedY), std::pair(500, 400));
  SelectPlanet(state, session, 2);
  EXPECT_EQ(std::pair(state.SelectedX, state.SelectedY), std::pair(0, 0));
}

TEST(MapState, ZoomedMapScrollsByWholeStepsThatStayClearOfTheUniversesEdge) {
  using Key = ScrollKey;
  // Key and shift mask, the window's corner and its steps. The scale is 50, a step 12.5 times the
  // mask; ties go to even.
  const std::tuple<Key, int, int, int, int, int> cases[] = {
      {Key::Left, 0, 300, 400, -1, 0},  {Key::Down, 0, 300, 400, 0, 1},
      {Key::Right, 1, 300, 400, 12, 0}, {Key::Up, 7, 300, 400, 0, -88},
      {Key::Left, 2, 25, 400, 0, 0},    {Key::Left, 2, 26, 400, -25, 0},
      {Key::Up, 2, 300, 25, 0, 0},      {Key::Up, 2, 300, 26, 0, -25},
      {Key::Right, 2, 775, 400, 0, 0},  {Key::Right, 2, 774, 400, 25, 0},
      {Key::Down, 2, 300, 775, 0, 0},   {Key::Down, 2, 300, 774, 0, 25}};
  for (const auto& [key, shiftMask, xMin, yMin, dx, dy] : cases) {
    MapState state = {.View = Zoomed(xMin, yMin, 200), .ZoomArmed = 1};
    EXPECT_TRUE(ScrollView(state, key, shiftMask)) << "redrawn, moved or not";
    EXPECT_EQ(EdgesOf(state.View), EdgesOf(Zoomed(xMin + dx, yMin + dy, 200)))
        << xMin << "," << yMin << " mask " << shiftMask;
    state.ZoomArmed = 0;
    EXPECT_FALSE(ScrollView(state, key, shiftMask)) << "not zoomed";
  }
}

TEST(ZoomBox, ShowsTheSquareBetweenTheTwoClicks) {
  MapState state = {.View = FullView()};
  EXPECT_EQ(ClickMap(state, {1005, 2015}), MapClick::Pick);
  state.ClickMode = kStartZoomBox;
  MovePointer(state, {1005, 2015});
  EXPECT_EQ(ClickMap(state, {1005, 2015}), MapClick::BoxStarted);
  EXPECT_EQ(ClickMap(state, {1005, 2015}), MapClick::BoxUnchanged) << "less than a light year";
  EXPECT_EQ(EdgesOf(state.View), EdgesOf(FullView())) << "until the box is complete";
  EXPECT_TRUE(GiveUpZoomBox(state));
  EXPECT_FALSE(GiveUpZoomBox(state)) << "none is open";

  ClickMap(state, {1005, 2015});
  MovePointer(state, {405, 2000});
  EXPECT_EQ(state.BoxSide, 600) << "to the right, whichever way the pointer goes";
  MovePointer(state, {3500, 9000});
  ASSERT_EQ(ClickMap(state, {0, 0}), MapClick::BoxEnded);
  // The corner lies at 100.5 and 201.5, the side is 249.5: halves go to even.
  EXPECT_EQ(EdgesOf(state.View), (std::array{100, 350, 202, 452}));
  EXPECT_EQ(state.View.MapScale, 10000.0 / 250);
  EXPECT_EQ(state.ClickMode, kOrdinaryClick);
}

TEST(PlanetAt, PicksTheLastPlanetWithinTheSquareOnAllFourEdges) {
  GameBuilder game;
  game.Planet("Alpha", {1500, 1500}).Planet("Beta", {1506, 1500}).Planet("Gamma", {1700, 1500});
  const GameSession session = game.Build();
  const std::tuple<SurfacePoint, int> cases[] = {
      {{5000, 5000}, 1},   {{4950, 4950}, 1}, {{4949.9, 5000}, 0}, {{5000, 5050}, 1},
      {{5000, 5050.1}, 0}, {{5010, 5000}, 2}, {{5009, 5000}, 1},   {{5110, 5000}, 2},
      {{5110.1, 5000}, 0}, {{7000, 4950}, 3}, {{7000, 4949}, 0},   {{0, 0}, 0}};
  for (const auto& [pointer, planet] : cases) {
    EXPECT_EQ(PlanetAt(session, FullView(), pointer), planet) << pointer.X << "," << pointer.Y;
  }
  // 12.5 units to a light year: the reach of 62.5 is rounded to 62.
  EXPECT_EQ(PlanetAt(session, Zoomed(100, 100, 800), {7562, 5000}), 3);
  EXPECT_EQ(PlanetAt(session, Zoomed(100, 100, 800), {7438, 5000}), 3);
  EXPECT_EQ(PlanetAt(session, Zoomed(100, 100, 800), {7437.9, 5000}), 0);
  EXPECT_EQ(PlanetAt(GameSession(), MapView(), {1, 1}), 0);
}

TEST(MarkerAround, IsFortyFiveLightYearsWideAndGoneFarOutsideTheView) {
  const std::tuple<const char*, MapView, int, int, std::optional<MarkerSquare>> cases[] = {
      {"full view", FullView(), 500, 400, MarkerSquare{4775, 3775, 450}},
      {"odd side", Zoomed(100, 100, 800), 500, 400, MarkerSquare{4719, 3469, 562.5}},
      {"nothing selected", FullView(), 0, 0, std::nullopt},
      {"stored X of 0", FullView(), 0, 400, std::nullopt},
      {"outside", Zoomed(100, 100, 100), 400, 150, MarkerSquare{27750, 2750, 4500}},
      {"far outside", Zoomed(100, 100, 100), 428, 150, std::nullopt},
      {"far outside on the left", Zoomed(900, 100, 25), 10, 110, std::nullopt}};
  for (const auto& [what, view, x, y, marker] : cases) {
    EXPECT_EQ(MarkerAround(view, x, y), marker) << what;
  }
  EXPECT_EQ(MarkerColour(0, 0.5, 0.999), (Colour{192, 224, 255}));
}

}  // namespace
}  // namespace quorvane
