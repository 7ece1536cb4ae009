#include "map/map_motion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

#include "map/view_history.h"
#include "support/map_views.h"

namespace quorvane {
namespace {

void ExpectInsideTheUniverse(const MapView& view) {
  if (view == FullView()) return;
  EXPECT_GE(view.ViewXMin, 0);
  EXPECT_GE(view.ViewYMin, 0);
  EXPECT_LE(view.ViewXMax, 1000);
  EXPECT_LE(view.ViewYMax, 1000);
  EXPECT_EQ(view.ViewXMax - view.ViewXMin, view.ViewYMax - view.ViewYMin);
  EXPECT_GE(view.ViewXMax - view.ViewXMin, kSmallestWindow);
  EXPECT_EQ(view.MapScale, 10000.0 / (view.ViewXMax - view.ViewXMin));
}

TEST(MapMotion, ZoomsByWholeNotchesAtThePointer) {
  MapMotion motion;
  MapView view = motion.Zoomed(FullView(), {5000, 2500}, 1);
  EXPECT_EQ(view, Zoomed(100, 50, 800));
  view = motion.Zoomed(view, {5000, 2500}, 1);
  EXPECT_EQ(view, Zoomed(180, 90, 640));
  EXPECT_EQ(motion.Zoomed(view, {0, 10000}, -1), Zoomed(180, 0, 800)) << "as far as the edge";
  EXPECT_EQ(motion.Zoomed(view, {0, 0}, -2), FullView());
  EXPECT_EQ(motion.Zoomed(FullView(), {0, 0}, -1), FullView());
  EXPECT_EQ(motion.Zoomed(FullView(), {10000, 10000}, 99), Zoomed(975, 975, 25));
  EXPECT_EQ(motion.Zoomed(MapView(), {0, 0}, 1), MapView()) << "without a game";
}

TEST(MapMotion, SmallStepsComeAsFarAsLargeOnes) {
  MapMotion motion;
  MapView view = Zoomed(400, 400, 100);
  for (int step = 0; step < 200; ++step) view = motion.Zoomed(view, {3000, 3000}, 1 / 100.0);
  EXPECT_EQ(view, Zoomed(411, 411, 64));
  for (int step = 0; step < 100; ++step) view = motion.Panned(view, 10, -20);
  EXPECT_EQ(view, Zoomed(411 + 6, 411 - 13, 64));
  view = motion.Panned(Zoomed(10, 960, 30), -1e9, 1e9);
  EXPECT_EQ(view, Zoomed(0, 970, 30));
  EXPECT_EQ(motion.Panned(FullView(), 500, 500), FullView());
}

TEST(MapMotion, PlaceUnderTheRestingPointerNeverWandersByMoreThanHalfALightYear) {
  std::mt19937 dice(12);
  const auto below = [&dice](int limit) { return static_cast<int>(dice() % std::uint32_t(limit)); };
  MapMotion motion;
  MapView view = FullView();
  for (int burst = 0; burst < 200; ++burst) {
    const SurfacePoint pointer = {2500.0 + below(5000), 2500.0 + below(5000)};
    const StoredPoint place = view.ToStored(pointer);
    for (int notch = below(8); notch > 0; --notch) {
      view = motion.Zoomed(view, pointer, 1);
      ExpectInsideTheUniverse(view);
      EXPECT_NEAR(view.ToStored(pointer).X, place.X, 0.5 + 1e-9);
      EXPECT_NEAR(view.ToStored(pointer).Y, place.Y, 0.5 + 1e-9);
    }
    for (int step = below(9); step > 0; --step) {
      view = motion.Panned(view, below(9000) - 4500, below(9000) - 4500);
      ExpectInsideTheUniverse(view);
    }
    for (int notch = below(8); notch > 0; --notch) {
      view = motion.Zoomed(view, pointer, -1.3);
      ExpectInsideTheUniverse(view);
    }
  }
}

TEST(MapMotion, DragsAndCentresAPlaceAsFarAsTheEdgesAllow) {
  EXPECT_EQ(DraggedView(Zoomed(400, 400, 200), {500, 500}, {2500, 5000}), Zoomed(450, 400, 200));
  EXPECT_EQ(DraggedView(Zoomed(400, 400, 200), {500, 500}, {-40000, 40000}), Zoomed(800, 0, 200));
  EXPECT_EQ(DraggedView(FullView(), {500, 500}, {0, 0}), FullView());
  EXPECT_EQ(CentredView(FullView(), {300, 990}, 200), Zoomed(200, 800, 200));
  EXPECT_EQ(CentredView(FullView(), {300, 300}, 1000), FullView());
}

TEST(ShowView, SetsTheStateThatAZoomBoxOrItsReleaseLeaves) {
  MapState state = {.View = FullView(), .ClickMode = kStartZoomBox};
  ShowView(state, Zoomed(100, 200, 300));
  EXPECT_EQ(state.View, Zoomed(100, 200, 300));
  EXPECT_TRUE(state.ZoomArmed == 1 && state.ClickMode == kOrdinaryClick);
  ShowView(state, FullView());
  EXPECT_EQ(state.ZoomArmed, 0);
}

TEST(ShowView, KeepsAnOpenZoomBoxWhereItIsInTheUniverse) {
  MapState state = {.View = FullView(), .ZoomArmed = 1, .ClickMode = kStartZoomBox};
  ClickMap(state, {3000, 4000});
  MovePointer(state, {4000, 4000});
  ShowView(state, Zoomed(200, 300, 500));
  EXPECT_EQ(state.BoxCorner, (SurfacePoint{2000, 2000}));
  EXPECT_EQ(state.BoxSide, 2000);
  ShowView(state, FullView());
  EXPECT_TRUE(state.ZoomArmed == 1 && state.ClickMode == kEndZoomBox);
  ShowView(state, Zoomed(200, 300, 500));
  EXPECT_EQ(ClickMap(state, {4000, 2500}), MapClick::BoxEnded);
  EXPECT_EQ(state.View, Zoomed(300, 400, 100));
}

TEST(ViewHistory, GoesBackAndForwardThroughTheLastViews) {
  ViewHistory history;
  history.Begin(Zoomed(0, 0, 1));
  for (int x = 1; x <= 60; ++x) history.Visit(Zoomed(x, 0, 1));
  history.Visit(Zoomed(60, 0, 1));
  int left = 60;
  while (history.CanGoBack()) EXPECT_EQ(history.GoBack(), Zoomed(--left, 0, 1));
  EXPECT_EQ(left, 60 - 50);
  EXPECT_EQ(history.GoForward(), Zoomed(11, 0, 1));
  history.Visit(Zoomed(500, 0, 1));
  EXPECT_FALSE(history.CanGoForward());
  history.Visit(Zoomed(501, 0, 1), true);
  history.Visit(Zoomed(502, 0, 1), true);
  EXPECT_EQ(history.GoBack(), Zoomed(11, 0, 1)) << "a movement is one view";
}

}  // namespace
}  // namespace quorvane
