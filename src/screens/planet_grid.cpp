#include "screens/planet_grid.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <tuple>
#include <utility>

#include "model/rounding.h"
#include "model/text.h"
#include "rules/estimated_hab.h"
#include "rules/scores.h"
#include "rules/stargates.h"

namespace quorvane {
namespace {

struct FixedColumn {
  const char* Heading;
  int Width;
};

// The first of these columns show a planet's fields in the order of their numbers, the last two
// what is derived from several fields.
constexpr std::array<FixedColumn, 25> kFixedColumns = {{
    {"#", 500},
    {"X Co-ord", 800},
    {"Y Co-ord", 800},
    {"Name", 1250},
    {"Owner", 1000},
    {"Starbase", 1500},
    {"Age", 1000},
    {"Population", 1000},
    {"SOI ", 800},
    {"Hab", 800},
    {"Mines", 800},
    {"Factories", 800},
    {"Resources", 850},
    {"Defenses", 800},
    {"Stored Iron", 1000},
    {"Stored Bora", 1000},
    {"Stored Germ", 1000},
    {"Iron MR", 800},
    {"Bora MR", 800},
    {"Germ MR", 800},
    {"Iron MC", 800},
    {"Bora MC", 800},
    {"Germ MC", 800},
    {"Stargate", 1300},
    {"Empire Exp. Value", 850},
}};
constexpr std::size_t kFieldColumns = 23;
constexpr std::size_t kFirstText = 3;  // the name
constexpr std::size_t kLastText = 6;   // the age

std::vector<PlanetGridColumn> ColumnsFor(const GameSession& session) {
  std::vector<PlanetGridColumn> columns;
  columns.reserve(kFixedColumns.size() + static_cast<std::size_t>(session.PlayerCount));
  for (const auto& [heading, width] : kFixedColumns) columns.push_back({heading, width});
  for (std::size_t column = kFirstText; column <= kLastText; ++column) {
    columns[column].Order = CellOrder::Text;
    columns[column].IsText = true;
  }
  for (const PlayerRecord& player : session.Players()) {
    columns.push_back({.Heading = player.Name() + "\r\nEst Hab %"});
  }
  return columns;
}

Colour AThirdOf(Colour colour) {
  const auto third = [](int component) { return static_cast<int>(ToWhole16(component / 3.0)); };
  return {third(colour.Red), third(colour.Green), third(colour.Blue)};
}

std::string FieldCell(const GameSession& session, const PlanetRecord& planet, PlanetField field) {
  if (field == PlanetField::X) return NumberText(planet.X() + kUniverseOrigin);
  if (field == PlanetField::Y) return NumberText(session.UniverseExtent - planet.Y());
  std::string text = FieldText(planet[field]);
  return text == kUnknown ? "0" : text;
}

void AppendEstimates(const GameSession& session, int planet, bool hasColour,
                     std::vector<std::string>& cells) {
  const bool isKnown = session.Planet(planet)[PlanetField::Radiation].Number() != 0;
  for (int player = 1; player <= session.PlayerCount; ++player) {
    if (isKnown) {
      cells.push_back(NumberText(EstimatedHab(session, player, planet)));
    } else {
      cells.emplace_back(hasColour ? "No Scan" : "N/A");
    }
  }
}

PlanetGridRow RowFor(const GameSession& session, int number, std::size_t columnCount) {
  const PlanetRecord& planet = session.Planet(number);
  const Colour* colour = session.ColourOf(planet.OwnerIndex());
  PlanetGridRow row;
  if (colour != nullptr) row.Background = AThirdOf(*colour);
  row.Cells.reserve(columnCount);
  for (std::size_t field = 1; field <= kFieldColumns; ++field) {
    row.Cells.push_back(FieldCell(session, planet, static_cast<PlanetField>(field)));
  }
  const bool hasGate = planet[PlanetField::GateRange].Number() > 0;
  row.Cells.push_back(hasGate ? GateLimitsText(planet) : "");
  row.Cells.push_back(NumberText(RoundToDecimals(ExpansionValue(planet), 2)));
  AppendEstimates(session, number, colour != nullptr, row.Cells);
  return row;
}

// What a cell compares by, worked out once for each sort.
struct SortKey {
  enum class Kind { Empty, Number, Text };

  Kind CellKind = Kind::Empty;
  double Number = 0;
  std::string Text;

  bool operator<(const SortKey& other) const {
    return std::tie(CellKind, Number, Text) < std::tie(other.CellKind, other.Number, other.Text);
  }
};

SortKey KeyOf(const std::string& cell, CellOrder order) {
  if (cell.empty()) return {};
  if (order == CellOrder::Text) return {.CellKind = SortKey::Kind::Text, .Text = InLowerCase(cell)};
  if (order == CellOrder::LeadingNumber) {
    const double number =
        HasDigit(cell) ? NumericValue(cell) : -std::numeric_limits<double>::infinity();
    return {.CellKind = SortKey::Kind::Number, .Number = number};
  }
  const std::optional<double> number = WholeTextNumber(cell);
  if (number) return {.CellKind = SortKey::Kind::Number, .Number = *number};
  return {.CellKind = SortKey::Kind::Text, .Text = cell};
}

}  // namespace

PlanetGrid FillPlanetGrid(const GameSession& session) {
  PlanetGrid grid;
  grid.Columns = ColumnsFor(session);
  grid.Rows.reserve(static_cast<std::size_t>(session.PlanetCount));
  for (int number = 1; number <= session.PlanetCount; ++number) {
    grid.Rows.push_back(RowFor(session, number, grid.Columns.size()));
  }
  return grid;
}

std::vector<std::size_t> SortedRows(const PlanetGrid& grid, std::size_t column,
                                    SortDirection direction, std::vector<std::size_t> order) {
  std::vector<SortKey> keys;
  keys.reserve(grid.Rows.size());
  for (const PlanetGridRow& row : grid.Rows) {
    keys.push_back(KeyOf(row.Cells.at(column), grid.Columns.at(column).Order));
  }
  const auto isBefore = [&](std::size_t left, std::size_t right) {
    return keys[left] < keys[right];
  };
  if (direction == SortDirection::Ascending) {
    std::ranges::stable_sort(order, isBefore);
  } else {
    // Turned round by its operands: reversing the result would turn equal rows round as well.
    std::ranges::stable_sort(
        order, [&](std::size_t left, std::size_t right) { return isBefore(right, left); });
  }
  return order;
}

}  // namespace quorvane
