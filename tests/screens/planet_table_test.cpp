#include "screens/planet_table.h"

#include <gtest/gtest.h>

#include "screens/planet_searches.h"
#include "screens/query_completion.h"
#include "support/game_builder.h"

namespace quorvane {
namespace {

using Field = PlanetField;
using Names = std::vector<std::string>;

GameSession FourPlanets() {
  GameBuilder game;
  game.Planet("Delta", {1100, 1100}).OwnedBy("Vantari").With(Field::Population, "90000");
  game.With(Field::GateRange, 100.0)
      .With(Field::AgeText, kCurrentAge)
      .With(Field::TerraValue, 97.0);
  game.Planet("beta", {1100, 1230}).OwnedBy("Drask").With(Field::Population, "1000000");
  game.With(Field::GateRange, 50.0).With(Field::AgeText, " 12 years old");
  game.Planet("Alpha", {1200, 1100}).With(Field::Population, "Uninhabited");
  game.With(Field::AgeText, "  2 years old");
  game.Planet("Old Vance", {1900, 1900}).OwnedBy("Drask").With(Field::Population, "90000");
  game.With(Field::GateRange, 900.0);
  GameSession session = game.Build();
  session.MyRaceName = "Vantari";
  PlanetRecord& own = session.Planet(1);
  own[PlanetExtra::ProductionQueue] = "Factory (3)";
  own[PlanetExtra::CapacityUsed] = "61";
  own[PlanetExtra::DriverTarget] = "beta";
  return session;
}

std::string Cell(const PlanetGrid& table, std::size_t row, std::string_view column) {
  return table.Rows.at(row).Cells.at(ColumnNamed(table, column).value());
}

TEST(PlanetTable, TellsWaysAndWhatReportsSay) {
  const GameSession session = FourPlanets();
  SearchFacts facts = FactsOf(session);
  PlanetGrid table = FillPlanetTable(session, facts);
  EXPECT_EQ(table.Columns.size(), 25U + 2 + 11);
  EXPECT_EQ(Cell(table, 1, "Distance l.y."), "");
  EXPECT_EQ(Cell(table, 1, "Nearest Own l.y."), "130.0");
  EXPECT_EQ(Cell(table, 0, "Terra %"), "97");
  EXPECT_EQ(Cell(table, 1, "Terra %"), "");
  EXPECT_EQ(Cell(table, 0, "Production Queue"), "Factory (3)");
  EXPECT_EQ(Cell(table, 0, "Capacity Used %"), "61");
  EXPECT_EQ(Cell(table, 0, "Driver To"), "beta");
  EXPECT_EQ(Cell(table, 0, "Drask Est Hab %"), "No Scan");
  FillWays(table, session, 2);
  const Names gates = {Cell(table, 0, "Gate"), Cell(table, 1, "Gate"), Cell(table, 2, "Gate"),
                       Cell(table, 3, "Gate")};
  EXPECT_EQ(gates, (Names{"2.6 x", "", "no", "no"}));
  EXPECT_EQ(Cell(table, 0, "Distance l.y."), "130.0");
  EXPECT_EQ(Cell(table, 0, "Years at Warp 9"), "2");
}

TEST(PlanetTable, SortsBySeveralColumns) {
  const PlanetGrid table = FillPlanetTable(FourPlanets(), {});
  using Sorting = std::vector<ColumnSort>;
  const std::pair<Sorting, std::vector<std::size_t>> cases[] = {
      {{}, {0, 1, 2, 3}},
      {{{"Name", false}}, {2, 1, 0, 3}},
      {{{"Population", true}}, {1, 0, 3, 2}},
      {{{"Population", false}, {"Name", true}}, {2, 3, 0, 1}},
      {{{"Owner", true}, {"Population", false}}, {0, 3, 1, 2}},
      {{{"Age", true}}, {1, 2, 0, 3}},
      {{{"Humanoid Est Hab %", true}, {"Name", false}}, {2, 1, 0, 3}}};
  for (const auto& [sorting, order] : cases) EXPECT_EQ(TableOrder(table, sorting), order);

  Sorting sorting;
  ClickColumn(sorting, "Owner", false);
  ClickColumn(sorting, "Name", true);
  ClickColumn(sorting, "Owner", true);
  EXPECT_EQ(sorting, (Sorting{{"Owner", true}, {"Name", false}}));
  ClickColumn(sorting, "Owner", false);
  EXPECT_EQ(sorting, (Sorting{{"Owner", false}}));
  ClickColumn(sorting, "Owner", false);
  EXPECT_EQ(sorting, (Sorting{{"Owner", true}}));
}

TEST(PlanetTable, KeepsTheArrangementOfColumnsAlsoOfOtherGames) {
  const PlanetGrid table = FillPlanetTable(FourPlanets(), {});
  const std::vector<ColumnPlace> first = ArrangeColumns(table, {});
  EXPECT_EQ(first.size(), table.Columns.size());
  EXPECT_EQ(first[1], (ColumnPlace{.Column = "Owner"}));
  const ColumnPlace age = {.Column = "Age", .Width = 90, .IsShown = false};
  const std::vector<ColumnPlace> kept = {
      {.Column = "Humanoid Est Hab %"}, age, {.Column = "Name"}, age};
  const std::vector<ColumnPlace> places = ArrangeColumns(table, kept);
  EXPECT_EQ(places.size(), table.Columns.size());
  EXPECT_EQ(places[0], (ColumnPlace{.Column = "Age", .Width = 90, .IsShown = false}));
  EXPECT_EQ(places[1].Column, "Starbase") << "what comes behind it at first";
  EXPECT_EQ(ArrangeColumns({}, kept), std::vector<ColumnPlace>());
  const std::vector<ColumnPlace> merged = WithOtherColumns({{.Column = "Name"}, age}, kept);
  EXPECT_EQ(merged,
            (std::vector<ColumnPlace>{{.Column = "Humanoid Est Hab %"}, {.Column = "Name"}, age}));
}

TEST(PlanetSearches, CanBeMadeAndHaveTheirColumns) {
  const GameSession session = FourPlanets();
  const PlanetGrid table = FillPlanetTable(session, {});
  for (const bool hasTerra : {false, true}) {
    for (const PlanetSearch& search : ReadyMadeSearches(hasTerra)) {
      EXPECT_TRUE(std::holds_alternative<PlanetFilter>(PlanetFilter::Make(search.Query, session)));
      for (const ColumnSort& sort : search.Sorting) {
        EXPECT_TRUE(ColumnNamed(table, sort.Column)) << sort.Column;
      }
    }
  }
  std::vector<PlanetSearch> own;
  EXPECT_TRUE(KeepSearch(own, {.Name = " Rich & near ", .Query = "iron>60"}));
  EXPECT_TRUE(KeepSearch(own, {.Name = "rich & NEAR", .Query = "iron>80"}));
  EXPECT_FALSE(KeepSearch(own, {.Name = "old Reports", .Query = "mine"}));
  EXPECT_FALSE(KeepSearch(own, {.Name = " ", .Query = "mine"}));
  EXPECT_FALSE(KeepSearch(own, {.Name = "Empty", .Query = " "}));
  EXPECT_FALSE(KeepSearch(own, {.Name = "Wrong", .Query = "mine or"}));
  ASSERT_EQ(own.size(), 1U);
  EXPECT_EQ(own[0].Query, "iron>80");
}

TEST(QueryCompletion, GoesOnWithTheWordBeforeTheCursor) {
  const GameSession session = FourPlanets();
  struct Case {
    std::string Text;  // up to the cursor
    std::string Word;
    Names Entries;
  };
  const Case cases[] = {{"owner:", "", {"none", "Vantari", "Drask"}},
                        {"mine owner:d", "d", {"Drask"}},
                        {"unexp", "unexp", {"unexplored"}},
                        {"ow", "ow", {"owned", "owner:", "owner:none"}},
                        {"old", "old", {"\"Old Vance\""}},
                        {"near(", "", {"Delta", "beta", "Alpha", "\"Old Vance\""}},
                        {"near(old v", "old v", {"\"Old Vance\""}},
                        {"near(\"old v", "\"old v", {"\"Old Vance\""}},
                        {"mine \"al", "\"al", {"Alpha"}},
                        {"hab(va", "va", {"Vantari"}},
                        {"unknown(ger", "ger", {"germ"}},
                        {"pop>1", "1", {}},
                        {"mine ", "", {}}};
  for (const auto& [text, word, entries] : cases) {
    const QueryCompletion completion = CompleteQuery(text, text.size(), session);
    EXPECT_EQ(completion.Entries, entries) << text;
    EXPECT_EQ(text.substr(completion.Begin, completion.Length), word) << text;
  }
}

}  // namespace
}  // namespace quorvane
