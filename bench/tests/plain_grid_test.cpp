// The sort of the planet grid beside a plain one.

#include "reference/plain_grid.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace quorvane {
namespace {

TEST(SortedRows, AgreesWithAPlainSort) {
  constexpr std::size_t kName = 3;
  constexpr std::size_t kPopulation = 7;
  constexpr const char* kCells[] = {"",     "0", "-0", "7",      "07",  "10", " 9", "1e2",
                                    "5.5%", "a", "A",  "Remote", "N/A", "é",  "É",  " "};
  std::mt19937 dice(1);
  PlanetGrid grid;
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
