#include "screens/planet_grid.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/game_builder.h"

namespace quorvane {
namespace {

constexpr std::size_t kFirstEstimate = 25;

TEST(FillPlanetGrid, ShowsFieldsAsTheyStandAndWhatFollowsFromThem) {
  using Field = PlanetField;
  const std::tuple<Field, FieldValue, std::size_t, const char*> cases[] = {
      {Field::ReportAge, 1, 2, "1700"},
      {Field::AgeText, "  5 years old", 6, "  5 years old"},
      {Field::Mines, kUnknown, 10, "0"},
      {Field::Factories, FieldValue(), 11, ""},
      {Field::GateRange, kUnlimitedGate, 23, "300 Kt / Inf l.y."},
      {Field::GateRange, 0.4, 23, "300 Kt / 0.4 l.y."},
      {Field::GateRange, 0, 23, ""},
      {Field::HabValue, 50.0, 24, "31.67"},
      {Field::HabValue, "-1%", 24, "-0.63"},
      {Field::Radiation, "50mR", kFirstEstimate, "100"}};
  for (const auto& [field, value, column, text] : cases) {
    GameBuilder game;
    game.Player("Immune").WithPlayerField(PlayerField::GravImmune, 1);
    game.WithPlayerField(PlayerField::TempImmune, 1).WithPlayerField(PlayerField::RadImmune, 1);
    game.Planet("Alpha", {1200, 1700}).With(Field::GateMass, " 300 ").With(Field::IronMC, "30");
    game.With(Field::BoraMC, "60").With(Field::GermMC, "90").With(field, value);
    EXPECT_EQ(FillPlanetGrid(game.Build()).Rows.at(0).Cells.at(column), text) << column;
  }
}

TEST(FillPlanetGrid, ColoursRowsByOwnerAndSaysWhyThereIsNoEstimate) {
  GameBuilder game;
  game.Planet("Owned", {1500, 1500}).OwnedBy("Orange");
  game.WithPlayerField(PlayerField::ColourSlot, 8);
  game.Planet("Plain", {1500, 1500}).OwnedBy("Colourless");
  game.WithPlayerField(PlayerField::ColourSlot, 0);
  game.Planet("Free", {1500, 1500}).With(PlanetField::Radiation, "0mR");
  const PlanetGrid grid = FillPlanetGrid(game.Build());
  ASSERT_EQ(grid.Columns.size(), kFirstEstimate + 2);
  EXPECT_EQ(grid.Columns[8].Heading, "SOI ");
  EXPECT_EQ(grid.Columns[24].Width, 850);
  EXPECT_EQ(grid.Columns[26].Heading, "Colourless\r\nEst Hab %");
  EXPECT_EQ(grid.Columns[26].Width, kDefaultColumnWidth);
  EXPECT_EQ(grid.Rows.at(0).Background, (Colour{85, 43, 0}));
  EXPECT_EQ(grid.Rows.at(1).Background, (Colour{0, 0, 0}));
  EXPECT_EQ(grid.Rows.at(2).Background, (Colour{0, 0, 0}));
  EXPECT_EQ(grid.Rows.at(0).Cells.at(kFirstEstimate + 1), "No Scan");
  EXPECT_EQ(grid.Rows.at(2).Cells.at(kFirstEstimate + 1), "N/A");
}

TEST(FillPlanetGrid, HasTextsFromTheNameToTheAge) {
  const PlanetGrid grid = FillPlanetGrid(GameBuilder().Player("Drask").Build());
  for (std::size_t column = 0; column <= kFirstEstimate; ++column) {
    EXPECT_EQ(grid.Columns.at(column).IsText, column >= 3 && column <= 6) << column;
  }
}

}  // namespace
}  // namespace quorvane
