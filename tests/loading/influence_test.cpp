#include "loading/influence.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

#include "synthetic_game.h"

namespace quorvane {
namespace {

struct Source {
  int X, Y, Radius, Owner;
};

// A universe of 1300 light years, where a grid step is 2, with a sphere setting of 100.
GameSession GameOf(const std::vector<Source>& sources) {
  GameSession session = MakeInfluenceGame({.Width = 1300, .Planets = 0, .Players = 2});
  session.CreatePlanetTable(static_cast<int>(sources.size()));
  for (int i = 1; i <= session.PlanetCount; ++i) {
    const auto& [x, y, radius, owner] = sources.at(static_cast<std::size_t>(i) - 1);
    session.Planet(i)[PlanetField::X] = x;
    session.Planet(i)[PlanetField::Y] = y;
    session.Planet(i)[PlanetField::SoiRadius] = radius;
    session.Planet(i)[PlanetField::OwnerIndex] = owner;
  }
  return session;
}

InfluencePoint PointOf(GameSession session, int gx, int gy) {
  ComputeInfluence(session, {});
  return session.InfluenceGrid.At(gx, gy);
}

TEST(ComputeInfluence, LeavesEverythingEmptyWithoutOwnedSpheres) {
  GameSession session = GameOf({{100, 100, 0, 1}, {300, 300, -5, 1}, {200, 200, 80, 0}});
  ComputeInfluence(session, {});
  EXPECT_EQ(session.InfluenceGrid, InfluenceGrid(650));
  for (const PlayerRecord& player : session.PlayerTable) {
    EXPECT_TRUE(player[PlayerField::Territory].IsEmpty());
  }
}

TEST(ComputeInfluence, FadesOutBehindTheSphere) {
  GameSession session = GameOf({{100, 100, 100, 1}, {1000, 1000, 30, 2}});
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

TEST(ComputeInfluence, CountsPointsThatFadeToNothingForNobody) {
  // Half a point of influence is left 113 light years away, and rounded to the even 0.
  GameSession session = GameOf({{500, 500, 1, 1}});
  ComputeInfluence(session, {});
  EXPECT_EQ(session.InfluenceGrid.At(306, 250), (InfluencePoint{1, 1}));
  EXPECT_EQ(session.InfluenceGrid.At(307, 250), (InfluencePoint{0, 0}));
  EXPECT_GT(session.Player(0)[PlayerField::Territory].Number(), 0);
}

TEST(ComputeInfluence, GivesEqualSumsToTheLowerNumber) {
  EXPECT_EQ(PointOf(GameOf({{400, 500, 50, 2}, {600, 500, 50, 1}}), 250, 250).Holder, 1);
  EXPECT_EQ(PointOf(GameOf({{400, 500, 51, 2}, {600, 500, 50, 1}}), 250, 250).Holder, 2);
  // Far above the limit of 32767, sums are equal as well.
  EXPECT_EQ(PointOf(GameOf({{500, 500, 900, 2}, {500, 500, 400, 1}}), 250, 250).Holder, 1);
  EXPECT_EQ(PointOf(GameOf({{500, 500, 900, 2}, {500, 500, 320, 1}}), 250, 250).Holder, 2);
}

TEST(ComputeInfluence, RoundsHalvesOfTheSumInMapOrder) {
  // At (500, 500) one of the planets gives 1 and the other ½.
  const Source whole = {400, 500, 1, 1};
  const Source half = {612, 514, 1, 1};
  EXPECT_EQ(PointOf(GameOf({whole, half}), 250, 250).Strength, 2);
  EXPECT_EQ(PointOf(GameOf({half, whole}), 250, 250).Strength, 1);
}

TEST(ComputeInfluence, ShowsProgressEveryTenColumns) {
  GameSession session = MakeInfluenceGame({.Width = 5700, .Planets = 3, .Players = 2});
  ASSERT_EQ(session.GridSize, 649);
  std::vector<std::pair<int, int>> mustBe = {{0, 650}};
  for (int column = 0; column < 650; column += 10) mustBe.emplace_back(column, 650);
  mustBe.emplace_back(650, 650);
  std::vector<std::pair<int, int>> shown;
  ComputeInfluence(session, [&](int value, int most) { shown.emplace_back(value, most); });
  EXPECT_EQ(shown, mustBe);
}

}  // namespace
}  // namespace quorvane
