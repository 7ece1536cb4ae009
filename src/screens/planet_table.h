#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screens/planet_filter.h"
#include "screens/planet_grid.h"

namespace quorvane {

/// The table of all planets with what the planet grid does not tell: the value after terraforming,
/// ways from the own planets and from the selected one, and what reports say beyond the fields. In
/// columns of numbers, cells without one come before all others.
PlanetGrid FillPlanetTable(const GameSession& session, const SearchFacts& facts);

/// Tells the ways from another selected planet, in the table of the same game.
/// @param selected  0: none is selected, and the columns are empty
/// @return the columns that changed, first and last
std::pair<std::size_t, std::size_t> FillWays(PlanetGrid& table, const GameSession& session,
                                             int selected);

/// The name of a column: its heading in one line.
std::string ColumnName(const PlanetGridColumn& column);
/// The column of a name; nothing in a game without it.
std::optional<std::size_t> ColumnNamed(const PlanetGrid& table, std::string_view name);

/// What a table is sorted by.
struct ColumnSort {
  std::string Column;  // its name
  bool IsDescending = false;

  bool operator==(const ColumnSort&) const = default;
};

/// Takes a click on a heading: the table is sorted by that column alone, or, when it was before,
/// the other way round. A click that adds leaves the columns that it was sorted by before in front.
void ClickColumn(std::vector<ColumnSort>& sorting, const std::string& column, bool adds);

/// The rows, from 0, in the order of several columns, the first one counting most; rows that are
/// equal in all are in map order. Columns that the table does not have are passed over.
std::vector<std::size_t> TableOrder(const PlanetGrid& table,
                                    const std::vector<ColumnSort>& sorting);

/// How a user wants one column.
struct ColumnPlace {
  std::string Column;  // its name
  int Width = 0;       // pixels; 0: as it is at first
  bool IsShown = true;

  bool operator==(const ColumnPlace&) const = default;
};

/// Where each column of a table stands, from left to right: columns of which nothing was kept stand
/// behind their neighbour of the first arrangement.
/// @param kept  the user's arrangement, also with columns of other games
std::vector<ColumnPlace> ArrangeColumns(const PlanetGrid& table,
                                        const std::vector<ColumnPlace>& kept);

/// The user's arrangement of a table, together with what was kept before of columns that only other
/// games have: each behind the one that it stood behind.
std::vector<ColumnPlace> WithOtherColumns(std::vector<ColumnPlace> places,
                                          const std::vector<ColumnPlace>& kept);

}  // namespace quorvane
