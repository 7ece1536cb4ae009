#include "render/planets_overlay.h"

#include <gtest/gtest.h>

#include "support/drawn.h"

namespace quorvane {
namespace {

const MapView kZoomed = Zoomed(300, 300, 500);  // four times, 20 units to a light year

TEST(DrawPlanets, MarksGrowWithTheZoomAndEndAtTheWindow) {
  GameBuilder game;
  game.Planet("On the edge", {1300, 1500}).Planet("Inside", {1400, 1500});
  EXPECT_EQ(Drawn(DrawPlanets, game.Build(), kZoomed),
            (Texts{"circle 2000,4000 r40 #000000 fill #000000 copy solid w2",
                   "circle 2000,4000 r20 #ffffff fill #ffffff copy solid w2"}));
}

TEST(DrawOwnedPlanets, AllBlackDiscsComeBeforeTheFirstColouredOne) {
  GameBuilder game;
  game.Planet("Alpha", {1400, 1500}).OwnedBy("Humanoid").With(PlanetField::Starbase, "Space Dock");
  game.Planet("Beta", {1500, 1500}).OwnedBy("Drask").With(PlanetField::Starbase, kNoStarbase);
  game.WithPlayerField(PlayerField::ColourSlot, 8);
  game.Planet("Nobody's", {1600, 1500});
  game.Planet("Gamma", {1700, 1500}).OwnedBy("Ilyr").WithPlayerField(PlayerField::ColourSlot, 0);
  EXPECT_EQ(Drawn(DrawOwnedPlanets, game.Build(), kZoomed),
            (Texts{"circle 2000,4000 r160 #000000 fill #000000 copy solid w2",
                   "circle 4000,4000 r80 #000000 fill #000000 copy solid w2",
                   "circle 2000,4000 r60 #000000 fill #ff0000 copy solid w2",
                   "circle 2000,4000 r140 #ffff00 hollow copy solid w2",
                   "circle 4000,4000 r60 #000000 fill #ff8000 copy solid w2"}));
}

}  // namespace
}  // namespace quorvane
