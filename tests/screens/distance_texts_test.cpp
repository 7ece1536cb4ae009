#include "screens/distance_texts.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/game_builder.h"

namespace quorvane {
namespace {

TEST(DescribeWay, TellsWhatTheGateOfEachEndDoes) {
  const std::tuple<int, FieldValue, FieldValue, const char*, const char*> cases[] = {
      {100, 100, 99, "safe", "damage, 1.0 x range"},
      {230, 100, kUnlimitedGate, "damage, 2.3 x range", "safe"},
      {500, 100, 99, "damage, 5.0 x range", "no"},
      {103, 100, 0, "no", "no"},
      {103, "None", 300, "no", "no"},
      {103, {}, {}, "no", "no"}};
  for (const auto& [distance, here, other, there, back] : cases) {
    GameBuilder game;
    game.Planet("A", {1100, 1500}).With(PlanetField::GateRange, here);
    game.Planet("B", {1100.0 + distance, 1500}).With(PlanetField::GateRange, other);
    const DistanceTexts way = DescribeWay(game.Build(), 1, 2);
    EXPECT_EQ(way.GateThere, there) << distance;
    EXPECT_EQ(way.GateBack, back) << distance;
  }
}

TEST(DescribeWay, TellsWhatThereIsToTell) {
  const GameSession session = GameBuilder()
                                  .Planet("A", {1100, 1500})
                                  .With(PlanetField::GateRange, kUnlimitedGate)
                                  .Planet("B", {1181, 1501})
                                  .Build();
  const DistanceTexts place = DescribeWay(session, 1, 0, StoredPoint{181, 500});
  EXPECT_EQ(place, (DistanceTexts{
                       "Deep Space",
                       "81.0 l.y.",
                       {"6 years", "4 years", "3 years", "2 years", "2 years", "1 year", "1 year"},
                       "no",
                       "no"}));
  const DistanceTexts planet = DescribeWay(session, 2, 2, StoredPoint{181, 500});
  EXPECT_EQ(planet.To + " " + planet.LightYears + " " + planet.Years[0], "B 0.0 l.y. 0 years");
  DistanceTexts onlyTo;
  onlyTo.To = "B";
  EXPECT_EQ(DescribeWay(session, 0, 2), onlyTo);
  EXPECT_EQ(DescribeWay(session, 1, 3), DistanceTexts()) << "a planet of another game";
}

}  // namespace
}  // namespace quorvane
