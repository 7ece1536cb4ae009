#include "map/selection_marker.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/map_views.h"

namespace quorvane {
namespace {

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
