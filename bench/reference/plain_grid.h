#pragma once

#include <cstddef>
#include <vector>

#include "screens/planet_grid.h"

namespace quorvane::reference {

/// The order that `SortedRows` has to give, written without any thought of speed: both cells are
/// read anew at every comparison.
std::vector<std::size_t> PlainSortedRows(const PlanetGrid& grid, std::size_t column,
                                         SortDirection direction, std::vector<std::size_t> order);

}  // namespace quorvane::reference
