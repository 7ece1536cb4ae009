#include <gtest/gtest.h>

#include <tuple>
#include <utility>

#include "map/overlays.h"
#include "support/drawn.h"

namespace quorvane {
namespace {

const MapView kZoomed = Zoomed(300, 300, 500);  // four times, 20 units to a light year

TEST(DrawPlanets, MarksGrowWithTheZoomAndEndAtTheWindow) {
  GameBuilder game;
  game.Planet("West edge", {1300, 1500}).Planet("East edge", {1800, 1500});
  game.Planet("North edge", {1400, 1700}).Planet("South edge", {1400, 1200});
  game.Planet("Inside", {1400, 1500});
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

TEST(DrawScannedPlanets, PenetratingRangesLieAboveNormalOnesAndPointsAboveBoth) {
  GameBuilder game;
  game.Planet("Alpha", {1400, 1500}).With(PlanetField::ScanRange, 50);
  game.With(PlanetField::PenScanRange, 20).With(PlanetField::AgeText, "Current");
  game.Planet("Beta", {1500, 1500}).With(PlanetField::ScanRange, 10);
  game.With(PlanetField::PenScanRange, -1).With(PlanetField::AgeText, " Current");
  GameSession session = game.Build();
  const Texts points = {"point 2000,4000 #ffff00 copy w4"};
  EXPECT_EQ(Drawn(DrawScannedPlanets, session, kZoomed),
            (Texts{"circle 2000,4000 r1000 #600000 fill #600000 copy solid w1",
                   "circle 4000,4000 r200 #600000 fill #600000 copy solid w1",
                   "circle 2000,4000 r400 #606000 fill #606000 copy solid w1", points[0]}));
  session.ReportStyle = kOldReportStyle;
  EXPECT_EQ(Drawn(DrawScannedPlanets, session, kZoomed), points);
}

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

TEST(DrawReportAge, GoesFromGreenToRedWithTheYears) {
  const std::tuple<double, const char*, const char*> cases[] = {
      {0, "Current", "#00ff00"},           {3, "  3 years old", "#1ee100"},
      {25, " 25 years old", "#fa0500"},    {26, " 26 years old", "#ff0000"},
      {9999, "9999 years old", "#ff0000"}, {0, "", nullptr},
      {-2, " -2 years old", nullptr}};
  for (const auto& [years, age, colour] : cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).With(PlanetField::ReportAge, years);
    game.With(PlanetField::AgeText, age);
    const Texts expected = colour != nullptr ? Texts{Disc("60", colour)} : Texts();
    EXPECT_EQ(Drawn(DrawReportAge, game.Build()), expected) << years;
  }
}

}  // namespace
}  // namespace quorvane
