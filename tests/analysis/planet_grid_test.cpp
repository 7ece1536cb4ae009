#include "analysis/planet_grid.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/game_builder.h"

namespace quorvane {
namespace {

using Texts = std::vector<std::string>;

constexpr std::size_t kName = 3;
constexpr std::size_t kPopulation = 7;
constexpr std::size_t kFirstEstimate = 25;

// A grid that has texts in one column only.
PlanetGrid GridOf(std::size_t column, const Texts& cells) {
  PlanetGrid grid;
  for (const std::string& cell : cells) {
    Texts& row = grid.Rows.emplace_back().Cells;
    row.resize(column);
    row.push_back(cell);
  }
  return grid;
}

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

TEST(SortedRows, OrdersNumbersTextsAndMixturesOfBoth) {
  const std::tuple<std::size_t, Texts, Texts> cases[] = {
      {kPopulation, {"100", "9", "-5", "12.5"}, {"-5", "9", "12.5", "100"}},
      {kPopulation, {"b", "10", "", "9a", " 9", "B"}, {"", " 9", "10", "9a", "B", "b"}},
      {kPopulation, {"1", "1.0", "0", "&H1"}, {"0", "1", "1.0", "&H1"}},
      {kName, {"beta", "Alpha", "10", "9", "BETA", ""}, {"", "10", "9", "Alpha", "beta", "BETA"}},
      {kName, {"éz", "Éa", "z"}, {"z", "Éa", "éz"}},
      {kFirstEstimate, {"N/A", "100", "-45", "No Scan"}, {"-45", "100", "N/A", "No Scan"}}};
  for (const auto& [column, cells, expected] : cases) {
    std::vector<std::size_t> order = {0, 1, 2, 3, 4, 5};
    order.resize(cells.size());
    order = SortedRows(GridOf(column, cells), column, SortDirection::Ascending, order);
    Texts sorted;
    for (const std::size_t row : order) sorted.push_back(cells[row]);
    EXPECT_EQ(sorted, expected);
  }
}

}  // namespace
}  // namespace quorvane
