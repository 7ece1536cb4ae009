#include "render/zoom_box.h"

#include <gtest/gtest.h>

#include "support/map_views.h"

namespace quorvane {
namespace {

TEST(ZoomBox, ShowsTheSquareBetweenTheTwoClicks) {
  MapState state = {.View = FullView(), .ClickMode = kStartZoomBox};
  StartZoomBox(state, {1005, 2015});
  EXPECT_EQ(state.ClickMode, kEndZoomBox);
  EXPECT_FALSE(EndZoomBox(state, 1)) << "less than a light year";
  EXPECT_EQ(state.ClickMode, kEndZoomBox);
  EXPECT_EQ(state.View.MapScale, 10);

  ASSERT_TRUE(EndZoomBox(state, ZoomBoxSide(1005, 3500)));
  EXPECT_EQ(state.View.ViewXMin, 100);  // 100.5, half to even
  EXPECT_EQ(state.View.ViewYMin, 202);  // 201.5
  EXPECT_EQ(state.View.ViewXMax, 350);  // 100 + 249.5 gives 349.5
  EXPECT_EQ(state.View.ViewYMax, 452);
  EXPECT_EQ(state.View.MapScale, 10000.0 / 250);
  EXPECT_EQ(state.ClickMode, kOrdinaryClick);
  EXPECT_EQ(ZoomBoxSide(1000, 400), 600) << "to the right, whichever way the pointer goes";
}

}  // namespace
}  // namespace quorvane
