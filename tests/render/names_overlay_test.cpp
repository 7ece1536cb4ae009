#include "render/names_overlay.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/drawn.h"

namespace quorvane {
namespace {

TEST(DrawPlanetNames, SitCentredBelowThePlanetInTheOwnersColourAndGrowWithTheZoom) {
  GameBuilder game;
  game.Planet("Alpha", {1500, 1500}).OwnedBy("Humanoid").Planet("007", {1500, 1500});
  const std::pair<int, Texts> cases[] = {
      // the window's width, then what is printed with 100 units to a character
      {1000,  // half a point rounds to none
       {"text 4750,5050 \"Alpha\" #ff0000 6pt", "text 4850,5050 \"007\" #ffffff 6pt"}},
      {500, {"text 4750,5100 \"Alpha\" #ff0000 7pt", "text 4850,5100 \"007\" #ffffff 7pt"}},
      {200, {"text 4750,5250 \"Alpha\" #ff0000 8pt", "text 4850,5250 \"007\" #ffffff 8pt"}}};
  for (const auto& [width, printed] : cases) {
    const MapView view = Zoomed(500 - width / 2, 500 - width / 2, width);
    EXPECT_EQ(Drawn(DrawPlanetNames, game.Build(), view, true), printed);
  }
}

}  // namespace
}  // namespace quorvane
