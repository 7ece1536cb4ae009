#include "rules/estimated_hab.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/game_builder.h"

namespace quorvane {
namespace {

// Gravity 0.5 … 2 g, temperature -100 … 100, radiation 20 … 80; the centres are 50, 0 and 50.
GameSession GameOfOneRace() {
  GameSession session = GameBuilder().Planet("Alpha", {1200, 1300}).OwnedBy("Humanoid").Build();
  const double ranges[] = {0.5, 2, -100, 100, 20, 80};
  for (std::size_t i = 0; i < 6; ++i) {
    session.Player(1).Field(static_cast<std::size_t>(PlayerField::GravMin) + i) = ranges[i];
  }
  return session;
}

int HabOf(GameSession& session, const char* gravity, const char* temperature,
          const char* radiation) {
  session.Planet(1)[PlanetField::Gravity] = gravity;
  session.Planet(1)[PlanetField::Temperature] = temperature;
  session.Planet(1)[PlanetField::Radiation] = radiation;
  return EstimatedHab(session, 1, 1);
}

TEST(EstimatedHab, FollowsDistanceFromTheCentreAndStepsOutside) {
  const std::tuple<const char*, const char*, const char*, int> cases[] = {
      {"1.00g", "0", "50mR", 100}, {"0.5", "-100", "20", 0}, {"1", "-50", "35", 71},
      {"0.45g", "0", "50", -1},    {"1", "-104", "50", -1},  {"1", "-110", "50", -2},
      {"1", "-101", "50", 40},     {"1", "0", "19", -1},     {"8", "200", "100", -45},
      {"1", "0", "Unknown", -100}, {"1", "0", "", -100},     {"1", "0", "-3", 0},
      {"0", "0", "50", -15},       {"1", "200", "50", -15}};
  GameSession session = GameOfOneRace();
  for (const auto& [gravity, temperature, radiation, hab] : cases) {
    EXPECT_EQ(HabOf(session, gravity, temperature, radiation), hab)
        << gravity << ' ' << temperature << ' ' << radiation;
  }
}

TEST(EstimatedHab, CountsOnlyAnImmunityOfOne) {
  GameSession session = GameOfOneRace();
  PlayerRecord& race = session.Player(1);
  race[PlayerField::GravImmune] = 1;
  race[PlayerField::TempImmune] = 1;
  race[PlayerField::RadImmune] = 1;
  EXPECT_EQ(HabOf(session, "8", "200", "100"), 100);
  race[PlayerField::RadImmune] = 2;
  EXPECT_EQ(HabOf(session, "8", "200", "100"), -15);
}

TEST(EstimatedHab, TakesTheOnlyPointOfANarrowRangeAsItsCentre) {
  GameSession session = GameOfOneRace();
  session.Player(1)[PlayerField::RadMin] = 50;
  session.Player(1)[PlayerField::RadMax] = 51;
  EXPECT_EQ(HabOf(session, "1", "0", "50"), 100);
  EXPECT_EQ(HabOf(session, "1", "0", "49"), -1);
  session.Player(1)[PlayerField::GravMin] = 0;  // cannot be placed on the scale
  EXPECT_EQ(HabOf(session, "8", "0", "50"), -15);
}

TEST(GravityToScale, FollowsTheGamesUnevenSteps) {
  const std::pair<double, int> cases[] = {{0.12, -1}, {0.13, 1}, {0.25, 17},  {0.5, 25},
                                          {0.75, 42}, {1, 50},   {1.5, 62},   {2, 75},
                                          {4, 83},    {8, 100},  {0, -32768}, {1e-300, -32768}};
  for (const auto& [gravity, position] : cases)
    EXPECT_EQ(GravityToScale(gravity), position) << gravity;
}

}  // namespace
}  // namespace quorvane
