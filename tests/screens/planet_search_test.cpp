#include "screens/planet_search.h"

#include <gtest/gtest.h>

#include "support/game_builder.h"

namespace quorvane {
namespace {

TEST(FindPlanetNamed, GivesTheFirstOfExactlyThatName) {
  GameBuilder game;
  game.Planet("Alpha", {1100, 1200}).Planet("Beta", {1300, 1400}).OwnedBy("Drask");
  game.Planet("Beta", {1500, 1600});
  const GameSession session = game.Build();
  EXPECT_EQ(PlanetEntries(session), (std::vector<std::string>{"Alpha", "Beta (Drask)", "Beta"}));
  EXPECT_EQ(FindPlanetNamed(session, "Beta"), 2);
  for (const char* missing : {"beta", "Beta ", "Beta (Drask)", ""}) {
    EXPECT_EQ(FindPlanetNamed(session, missing), 0) << missing;
  }
}

}  // namespace
}  // namespace quorvane
