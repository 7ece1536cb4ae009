#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/game_session.h"

namespace quorvane {

/// The width of a column that leaves it to the planet grid.
inline constexpr int kDefaultColumnWidth = -1;

/// How the cells of a column compare.
enum class CellOrder {
  /// Cells that are numbers as numbers, and texts as texts; so that any mixture has one order,
  /// empty cells come before all numbers and all numbers before all other texts.
  Mixed,
  /// Names and other texts, without regard to case.
  Text,
  /// By the number that a cell begins with; ones without a digit come before all numbers, and empty
  /// ones before these.
  LeadingNumber,
};

struct PlanetGridColumn {
  /// The players' headings hold a line break (CR LF).
  std::string Heading;
  /// In twips, or `kDefaultColumnWidth`.
  int Width = kDefaultColumnWidth;
  CellOrder Order = CellOrder::Mixed;
  /// Whether it holds words, which begin on the left.
  bool IsText = false;
};

struct PlanetGridRow {
  /// The owner's colour, darkened so that white text can be read on it; black without an owner.
  Colour Background;
  std::vector<std::string> Cells;
};

/// The table of all planets as it was at one moment: texts and colours, which do not follow later
/// changes of the game.
struct PlanetGrid {
  std::vector<PlanetGridColumn> Columns;
  /// One for each planet, in map order.
  std::vector<PlanetGridRow> Rows;
};

/// Tells of every planet its position, owner, economy, minerals, stargate, worth for an expanding
/// empire, and how well each player could live there: 25 columns and one for each player.
PlanetGrid FillPlanetGrid(const GameSession& session);

enum class SortDirection { Ascending, Descending };

/// The rows in the order of one column; equal cells keep the order in which they come, in both
/// directions.
/// @param order  the rows' numbers, from 0, in their present order
std::vector<std::size_t> SortedRows(const PlanetGrid& grid, std::size_t column,
                                    SortDirection direction, std::vector<std::size_t> order);

}  // namespace quorvane
