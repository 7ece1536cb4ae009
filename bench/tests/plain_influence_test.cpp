// The influence of many made-up games, point by point beside the plain sums.

#include "reference/plain_influence.h"

#include <gtest/gtest.h>

#include <utility>

#include "influence/compute_influence.h"
#include "synthetic_game.h"

namespace quorvane {
namespace {

bool SameInfluence(const GameSession& fast, const GameSession& plain) {
  return fast.InfluenceGrid == plain.InfluenceGrid && fast.PlayerTable == plain.PlayerTable;
}

TEST(ComputeInfluence, CopesWithPlanetsFarOutsideTheUniverse) {
  GameSession fast = MakeInfluenceGame({.Width = 31700, .Planets = 4, .Players = 4});
  const std::pair<int, int> positions[] = {
      {-32768, -32768}, {32767, 32767}, {-32768, 32767}, {31760, -60}};
  for (int i = 1; i <= 4; ++i) {
    fast.Planet(i)[PlanetField::X] = positions[i - 1].first;
    fast.Planet(i)[PlanetField::Y] = positions[i - 1].second;
  }
  GameSession plain = fast;
  ComputeInfluence(fast, {});
  reference::PlainComputeInfluence(plain);
  EXPECT_EQ(fast.InfluenceGrid.At(650, 0).Holder, 4);
  EXPECT_TRUE(SameInfluence(fast, plain));
}

TEST(ComputeInfluence, GivesWhatThePlainSumsGive) {
  constexpr unsigned kGames = 150;
  for (unsigned number = 0; number < kGames; ++number) {
    GameSession plain = MakeAwkwardGame(number);
    const GameSession game = plain;
    reference::PlainComputeInfluence(plain);
    for (const auto vectors :
         {InfluenceVectors::Bits128, InfluenceVectors::Bits256, InfluenceVectors::Bits512}) {
      GameSession fast = game;
      ComputeInfluence(fast, {}, vectors);
      EXPECT_TRUE(SameInfluence(fast, plain))
          << "game " << number << ", vectors " << static_cast<int>(vectors);
    }
  }
}

TEST(ComputeInfluence, AsksOftenInACrowdedUniverseWhetherItIsStopped) {
  GameSession fast = MakeInfluenceGame(kCrowdedGame);
  fast.GridSize = 19;  // a corner is enough
  GameSession plain = fast;
  int questions = 0;
  ComputeInfluence(fast, {.ShowValue = {}, .AskStopped = [&] { return ++questions < 0; }});
  reference::PlainComputeInfluence(plain);
  EXPECT_TRUE(SameInfluence(fast, plain));
  EXPECT_GT(questions, 2) << "not only behind each strip of ten columns";
}

}  // namespace
}  // namespace quorvane
