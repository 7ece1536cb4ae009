// How long the planet grid of a vast game takes to be filled and shown, and to be sorted, each
// beside a plain version: a table widget with an item for every cell, and a sort that reads both
// cells anew at every comparison.

#include <QBrush>
#include <QTableWidget>
#include <memory>
#include <numeric>

#include "paint/colours.h"
#include "reference/plain_grid.h"
#include "synthetic_game.h"
#include "ui/grid.h"
#include "ui/texts.h"
#include "window_bench.h"

namespace quorvane {
namespace {

constexpr std::size_t kOwner = 4;
constexpr std::size_t kPopulation = 7;

void DescribePlayer(PlayerRecord& player, int number) {
  player[PlayerField::Name] = "Race number " + std::to_string(number);
  player[PlayerField::ColourSlot] = number;
  constexpr std::pair<PlayerField, double> kRanges[] = {
      {PlayerField::GravMin, 0.3}, {PlayerField::GravMax, 2.8}, {PlayerField::TempMin, -80},
      {PlayerField::TempMax, 120}, {PlayerField::RadMin, 15},   {PlayerField::RadMax, 85}};
  for (const auto& [field, value] : kRanges) player[field] = value;
}

void DescribePlanet(PlanetRecord& planet, int number, const std::string& owner) {
  constexpr auto kFirst = static_cast<std::size_t>(PlanetField::Mines);
  constexpr auto kLast = static_cast<std::size_t>(PlanetField::GermMC);
  for (std::size_t field = kFirst; field <= kLast; ++field) {
    planet.Field(field) = std::to_string(static_cast<std::size_t>(number) * field * 31 % 3000);
  }
  const std::string percent = std::to_string(number % 100);
  planet[PlanetField::Name] = "Planet of number " + std::to_string(number * 7919 % 10000);
  planet[PlanetField::Owner] = owner;
  planet[PlanetField::Starbase] = number % 3 == 0 ? "Ultra Station" : kNoStarbase;
  planet[PlanetField::AgeText] = " " + percent + " years old";
  planet[PlanetField::HabValue] = number % 146 - 45.0;
  planet[PlanetField::DefencePercent] = percent + ".25%";
  planet[PlanetField::Gravity] = "1." + percent + "g";
  planet[PlanetField::Temperature] = percent + "C";
  planet[PlanetField::Radiation] = std::to_string(number % 100 + 1) + "mR";
  planet[PlanetField::GateRange] = 300.0;
  planet[PlanetField::GateMass] = kUnlimitedGate;
}

// 5000 planets and 16 players, every field as full as reports can make it.
GameSession MakeGame() {
  GameSession session = MakeInfluenceGame(kVastGame);
  for (int player = 1; player <= session.PlayerCount; ++player) {
    DescribePlayer(session.Player(player), player);
  }
  for (int number = 1; number <= session.PlanetCount; ++number) {
    PlanetRecord& planet = session.Planet(number);
    DescribePlanet(planet, number, session.Player(planet.OwnerIndex()).Name());
  }
  return session;
}

const GameSession& Game() {
  static const GameSession session = MakeGame();
  return session;
}

// Makes a window anew each time, from nothing to its first picture.
template <typename Make>
void MeasureWindow(benchmark::State& state, const Make& make) {
  Game();
  for (auto _ : state) {
    const auto window = make();
    window->show();
    QApplication::processEvents();
    benchmark::DoNotOptimize(window->grab());
  }
}

std::unique_ptr<QWidget> MakeGrid() {
  auto grid = std::make_unique<Grid>();
  grid->Fill(Game());
  return grid;
}

std::unique_ptr<QWidget> MakePlainTable() {
  const PlanetGrid grid = FillPlanetGrid(Game());
  const auto rows = static_cast<int>(grid.Rows.size());
  auto table = std::make_unique<QTableWidget>(rows, static_cast<int>(grid.Columns.size()));
  table->resize(1200, 640);
  for (int row = 0; row < table->rowCount(); ++row) {
    const PlanetGridRow& planet = grid.Rows[static_cast<std::size_t>(row)];
    for (int column = 0; column < table->columnCount(); ++column) {
      auto* cell = new QTableWidgetItem(ToQString(planet.Cells[static_cast<std::size_t>(column)]));
      cell->setBackground(QBrush(QColor(RgbOf(planet.Background))));
      cell->setForeground(Qt::white);
      table->setItem(row, column, cell);
    }
  }
  return table;
}

void FillSnapshot(benchmark::State& state) {
  Game();
  for (auto _ : state) benchmark::DoNotOptimize(FillPlanetGrid(Game()).Rows.data());
}

// A sort of the window, its next picture included.
void SortWindow(benchmark::State& state) {
  Grid grid;
  grid.Fill(Game());
  grid.show();
  QApplication::processEvents();
  bool isAscending = false;
  for (auto _ : state) {
    isAscending = !isAscending;
    grid.DG->model()->sort(static_cast<int>(kPopulation),
                           isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
    benchmark::DoNotOptimize(grid.grab());
  }
}

using Sort = decltype(SortedRows);

void MeasureSort(benchmark::State& state, Sort& sort, std::size_t column) {
  const PlanetGrid grid = FillPlanetGrid(Game());
  std::vector<std::size_t> order(grid.Rows.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  for (auto _ : state) {
    benchmark::DoNotOptimize(sort(grid, column, SortDirection::Ascending, order).data());
  }
}

void RegisterAll() {
  Register("fast/window, 5000 planets", [](auto& state) { MeasureWindow(state, MakeGrid); });
  Register("plain/window, 5000 planets", [](auto& state) { MeasureWindow(state, MakePlainTable); });
  Register("snapshot, 5000 planets", FillSnapshot);
  Register("sort with its picture", SortWindow);
  constexpr std::pair<const char*, std::size_t> kColumns[] = {{"sort by owner", kOwner},
                                                              {"sort by population", kPopulation}};
  for (const auto& [name, column] : kColumns) {
    const std::size_t sorted = column;
    Register(std::string("fast/") + name,
             [sorted](auto& state) { MeasureSort(state, SortedRows, sorted); });
    Register(std::string("plain/") + name,
             [sorted](auto& state) { MeasureSort(state, reference::PlainSortedRows, sorted); });
  }
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  return quorvane::RunWindowBenchmarks(argc, argv, quorvane::RegisterAll);
}
