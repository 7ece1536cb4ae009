#include "influence/compute_influence.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

#include "support/game_builder.h"

namespace quorvane {
namespace {

TEST(ComputeInfluence, FadesOutBehindTheSphere) {
  GameBuilder game;
  game.Planet("Strong", {1100, 1900}).OwnedBy("First").With(PlanetField::SoiRadius, 100);
  game.Planet("Weak", {2000, 1000}).OwnedBy("Second").With(PlanetField::SoiRadius, 30);
  GameSession session = game.Build();
  session.GridCellSize = 2;
  ComputeInfluence(session, {});
  // Light years east of the planet, its radius being 100 and 30; (S x r) / d up to 100.
  const std::tuple<int, InfluencePoint, InfluencePoint> cases[] = {
      {0, {1, 100}, {2, 100}},  {30, {1, 100}, {2, 100}}, {32, {1, 100}, {2, 93}},
      {100, {1, 100}, {2, 30}}, {102, {1, 94}, {2, 28}},  {124, {1, 6}, {2, 2}},
      {126, {0, 0}, {0, 0}},    {200, {0, 0}, {0, 0}}};
  for (const auto& [east, strong, weak] : cases) {
    EXPECT_EQ(session.InfluenceGrid.At((100 + east) / 2, 50), strong) << east;
    EXPECT_EQ(session.InfluenceGrid.At((1000 + east) / 2, 500), weak) << east;
  }
}

TEST(ComputeInfluence, ShowsProgressEveryTenColumns) {
  GameSession session = GameBuilder().Build();
  session.GridSize = 19;
  std::vector<std::pair<int, int>> shown;
  const auto show = [&](int value, int most) { shown.emplace_back(value, most); };
  EXPECT_TRUE(ComputeInfluence(session, {.ShowValue = show, .AskStopped = {}}));
  EXPECT_EQ(shown, (decltype(shown){{0, 20}, {0, 20}, {10, 20}, {20, 20}}));
  EXPECT_FALSE(ComputeInfluence(session, {.ShowValue = {}, .AskStopped = [] { return true; }}));
}

}  // namespace
}  // namespace quorvane
