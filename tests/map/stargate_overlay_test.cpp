#include <gtest/gtest.h>

#include <tuple>

#include "map/overlays.h"
#include "support/drawn.h"

namespace quorvane {
namespace {

// Two gates, on a map of 10 units to a light year.
GameSession Gates(GamePoint first, int firstRange, GamePoint second, int secondRange) {
  GameBuilder game;
  game.Planet("First", first).With(PlanetField::GateRange, firstRange);
  game.Planet("Between", {1500, 1500}).With(PlanetField::GateRange, 0);
  game.Planet("Second", second).With(PlanetField::GateRange, secondRange);
  return game.Build();
}

std::string Arrow(const char* ends) {
  return std::string("line ") + ends + " #00c800 copy solid w1";
}

TEST(DrawStargates, ArrowheadsPointAtTheReceivingGateWhereverItLies) {
  // Where the other gate lies, and the mark a third of the way from the gate at 5000,5000.
  const std::tuple<const char*, GamePoint, Texts> cases[] = {
      {"east", {1530, 1500}, {Arrow("5100,5000 5060,4960"), Arrow("5100,5000 5060,5040")}},
      {"west", {1470, 1500}, {Arrow("4900,5000 4940,5040"), Arrow("4900,5000 4940,4960")}},
      {"north", {1500, 1530}, {Arrow("5000,4900 4960,4940"), Arrow("5000,4900 5040,4940")}},
      {"south", {1500, 1470}, {Arrow("5000,5100 5040,5060"), Arrow("5000,5100 4960,5060")}},
      {"south east", {1530, 1470}, {Arrow("5100,5100 5100,5050"), Arrow("5100,5100 5050,5100")}}};
  for (const auto& [what, to, mark] : cases) {
    const Texts lines = Drawn(DrawStargates, Gates({1500, 1500}, 50, to, 1), FullView(), false);
    ASSERT_EQ(lines.size(), 5U) << what;
    EXPECT_EQ(Texts(lines.begin(), lines.begin() + 2), mark) << what;
  }
}

TEST(DrawStargates, EachDirectionIsJudgedByTheRangeOfTheGateThatSends) {
  const std::string there = "line 4000,5000 6000,5000 #00ff00 copy solid w1";
  const std::string back = "line 6000,5000 4000,5000 ";
  const std::tuple<int, int, bool, Texts> cases[] = {
      {200, 100, false, {there}},
      {200, 100, true, {there, back + "#ffbf00 copy solid w1"}},
      {200, 40, true, {there, back + "#ff0000 copy solid w1"}},
      {200, 39, true, {there}},
      {10000, 199, true, {there, back + "#fffe00 copy solid w1"}},
      {0, 10000, true, {}}};
  for (const auto& [rangeThere, rangeBack, isComplete, expected] : cases) {
    const GameSession game = Gates({1400, 1500}, rangeThere, {1600, 1500}, rangeBack);
    Texts links = Drawn(DrawStargates, game, FullView(), isComplete);
    std::erase_if(links,
                  [](const std::string& line) { return line.ends_with("#00c800 copy solid w1"); });
    EXPECT_EQ(links, expected) << rangeThere << " " << rangeBack;
  }
}

}  // namespace
}  // namespace quorvane
