#include "render/scan_overlay.h"

#include <gtest/gtest.h>

#include "support/drawn.h"

namespace quorvane {
namespace {

TEST(DrawScannedPlanets, PenetratingRangesLieAboveNormalOnesAndPointsAboveBoth) {
  GameBuilder game;
  game.Planet("Alpha", {1400, 1500}).With(PlanetField::ScanRange, 50);
  game.With(PlanetField::PenScanRange, 20).With(PlanetField::AgeText, "Current");
  game.Planet("Beta", {1500, 1500}).With(PlanetField::ScanRange, 10);
  game.With(PlanetField::PenScanRange, -1).With(PlanetField::AgeText, " Current");
  GameSession session = game.Build();
  const MapView view = Zoomed(300, 300, 500);  // 20 units to a light year
  const Texts points = {"point 2000,4000 #ffff00 copy w4"};
  EXPECT_EQ(Drawn(DrawScannedPlanets, session, view),
            (Texts{"circle 2000,4000 r1000 #600000 fill #600000 copy solid w1",
                   "circle 4000,4000 r200 #600000 fill #600000 copy solid w1",
                   "circle 2000,4000 r400 #606000 fill #606000 copy solid w1", points[0]}));
  session.ReportStyle = kOldReportStyle;
  EXPECT_EQ(Drawn(DrawScannedPlanets, session, view), points);
}

}  // namespace
}  // namespace quorvane
