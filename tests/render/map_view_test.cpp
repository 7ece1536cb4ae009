#include "render/map_view.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/map_views.h"

namespace quorvane {
namespace {

TEST(MapView, WindowEdgesAreOutside) {
  const std::tuple<int, int, bool> cases[] = {{200, 500, false}, {700, 500, false},
                                              {300, 400, false}, {300, 900, false},
                                              {201, 401, true},  {699, 899, true}};
  for (const auto& [x, y, isInside] : cases) {
    EXPECT_EQ(Zoomed(200, 400, 500).Contains(x, y), isInside) << x << "," << y;
  }
}

TEST(MapView, DotSizeGrowsWithHalfTheZoomTiesToEven) {
  const std::pair<int, int> cases[] = {{1, 1}, {2, 1}, {3, 2}, {5, 2}, {6, 3}, {7, 4}, {9, 4}};
  for (const auto& [zoom, dotSize] : cases) {
    EXPECT_EQ(Zoomed(0, 0, 2000 / zoom).DotSize(), dotSize) << "zoom " << zoom;
  }
}

TEST(MapView, PointsOfThePictureBecomeWholeGameCoordinatesAndBack) {
  EXPECT_EQ(FullView().ToGame({2509, 2509}), (GamePoint{1250, 1750}));
  EXPECT_EQ(FullView().ToGame({-1, -1}), (GamePoint{999, 2001}));
  EXPECT_EQ(Zoomed(200, 400, 500).ToGame({5019, 19}), (GamePoint{1450, 1600}));
  EXPECT_EQ(Zoomed(200, 400, 500).ToSurface({450, 400}), (SurfacePoint{5000, 0}));
}

}  // namespace
}  // namespace quorvane
