#include "map/map_state.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>

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

TEST(MapState, ZoomIsArmedOnceAndKeepsTheViewUntilTheButtonIsReleased) {
  MapState state = {.View = Zoomed(300, 400, 200)};
  EXPECT_TRUE(ArmZoom(state, true));
  EXPECT_EQ(state.ClickMode, kStartZoomBox);
  state.ClickMode = kEndZoomBox;
  EXPECT_FALSE(ArmZoom(state, true)) << "the next redraw draws";
  EXPECT_FALSE(LeaveZoom(state, true));
  EXPECT_EQ(state.ClickMode, kEndZoomBox);
  EXPECT_EQ(EdgesOf(state.View), EdgesOf(Zoomed(300, 400, 200)));

  EXPECT_FALSE(ArmZoom(state, false));
  EXPECT_TRUE(LeaveZoom(state, false));
  EXPECT_EQ(state.ClickMode, kOrdinaryClick);
  EXPECT_EQ(state.View.MapScale, 10);
  EXPECT_TRUE(ArmZoom(state, true)) << "again";
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
  MapState state = {.View = FullView(), .ClickMode = kStartZoomBox};
  StartZoomBox(state, {1005, 2015});
  EXPECT_EQ(state.ClickMode, kEndZoomBox);
  EXPECT_FALSE(EndZoomBox(state, 1)) << "less than a light year";
  EXPECT_EQ(state.ClickMode, kEndZoomBox);
  EXPECT_EQ(EdgesOf(state.View), EdgesOf(FullView())) << "until the box is complete";
  EXPECT_TRUE(GiveUpZoomBox(state));
  EXPECT_FALSE(GiveUpZoomBox(state)) << "none is open";

  StartZoomBox(state, {1005, 2015});
  ASSERT_TRUE(EndZoomBox(state, ZoomBoxSide(1005, 3500)));
  // The corner lies at 100.5 and 201.5, the side is 249.5: halves go to even.
  EXPECT_EQ(EdgesOf(state.View), (std::array{100, 350, 202, 452}));
  EXPECT_EQ(state.View.MapScale, 10000.0 / 250);
  EXPECT_EQ(state.ClickMode, kOrdinaryClick);
  EXPECT_EQ(ZoomBoxSide(1000, 400), 600) << "to the right, whichever way the pointer goes";
}

}  // namespace
}  // namespace quorvane
