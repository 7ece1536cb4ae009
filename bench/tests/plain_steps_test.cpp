// The influence of many made-up games and the sort of the planet grid beside plain versions.

#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <utility>

#include "influence/compute_influence.h"
#include "reference/plain_grid.h"
#include "reference/plain_influence.h"
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

TEST(SortedRows, AgreesWithAPlainSort) {
  constexpr std::size_t kName = 3;
  constexpr std::size_t kPopulation = 7;
  constexpr const char* kCells[] = {"",     "0", "-0", "7",      "07",  "10", " 9", "1e2",
                                    "5.5%", "a", "A",  "Remote", "N/A", "é",  "É",  " "};
  std::mt19937 dice(1);
  PlanetGrid grid = FillPlanetGrid(GameSession());
  grid.Rows.resize(300);
  for (PlanetGridRow& row : grid.Rows) {
    row.Cells.resize(kPopulation + 1);
    for (std::string& cell : row.Cells) cell = kCells[dice() % std::size(kCells)];
  }
  std::vector<std::size_t> mapOrder(grid.Rows.size());
  std::iota(mapOrder.begin(), mapOrder.end(), std::size_t{0});
  for (const std::size_t column : {kName, kPopulation}) {
    for (const SortDirection direction : {SortDirection::Ascending, SortDirection::Descending}) {
      EXPECT_EQ(SortedRows(grid, column, direction, mapOrder),
                reference::PlainSortedRows(grid, column, direction, mapOrder))
          << column;
    }
  }
}

}  // namespace
}  // namespace quorvane
