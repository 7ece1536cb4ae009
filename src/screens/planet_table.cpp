#include "screens/planet_table.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <numeric>
#include <optional>
#include <utility>

#include "model/text.h"
#include "rules/distances.h"
#include "screens/distance_texts.h"

namespace quorvane {
namespace {

struct FurtherColumn {
  const char* Heading;
  int Width;  // twips
  bool IsText;
};

constexpr std::array<FurtherColumn, 11> kFurtherColumns = {{
    {"Terra %", 800, false},
    {"Nearest\r\nOwn l.y.", 850, false},
    {"Distance\r\nl.y.", 850, false},
    {"Years at\r\nWarp 9", 850, false},
    {"Gate", 700, true},
    {"Production Queue", 2200, true},
    {"Capacity\r\nUsed %", 850, false},
    {"Driver To", 1250, true},
    {"Driver\r\nWarp", 750, false},
    {"Route", 1250, true},
    {"Damage %", 900, false},
}};
constexpr int kNameWidth = 1600;
constexpr std::size_t kWays = 2;  // the first of the three that depend on the selected planet
constexpr std::size_t kWayColumns = 3;

// What is looked at most stands in front.
constexpr std::string_view kFirstColumns[] = {
    "Name",          "Owner",           "Population", "Hab", "Terra %",  "Nearest Own l.y.",
    "Distance l.y.", "Years at Warp 9", "Gate",       "Age", "Starbase", "Resources"};

std::string MeasureText(const std::optional<double>& value) {
  return value ? NumberText(*value) : "";
}

std::string GateCell(const GateWay& way) {
  if (way.Reach == GateReach::Safe) return "safe";
  return way.Reach == GateReach::None ? "no" : OneDecimalText(way.Ranges) + " x";
}

void AppendFurther(const GameSession& session, const SearchFacts& facts, int planet,
                   std::vector<std::string>& cells) {
  const PlanetRecord& record = session.Planet(planet);
  cells.push_back(MeasureText(MeasurePlanet(session, planet, PlanetMeasure::Terra)));
  cells.push_back(
      facts.ToOwn.empty() ? "" : OneDecimalText(facts.ToOwn.at(static_cast<std::size_t>(planet))));
  cells.resize(cells.size() + kWayColumns);
  for (std::size_t extra = 0; extra < kPlanetExtraCount; ++extra) {
    cells.push_back(FieldText(record[static_cast<PlanetExtra>(extra)]));
  }
}

std::vector<std::string> NamesInFirstOrder(const PlanetGrid& table) {
  std::vector<std::string> names;
  for (const std::string_view name : kFirstColumns) {
    if (ColumnNamed(table, name)) names.emplace_back(name);
  }
  for (const PlanetGridColumn& column : table.Columns) {
    const std::string name = ColumnName(column);
    if (std::ranges::find(names, name) == names.end()) names.push_back(name);
  }
  return names;
}

}  // namespace

PlanetGrid FillPlanetTable(const GameSession& session, const SearchFacts& facts) {
  PlanetGrid table = FillPlanetGrid(session);
  for (PlanetGridColumn& column : table.Columns) {
    if (column.Order == CellOrder::Mixed) column.Order = CellOrder::LeadingNumber;
    if (column.Heading == "Age") column.Order = CellOrder::LeadingNumber;
    if (column.Heading == "Name") column.Width = kNameWidth;
  }
  for (const auto& [heading, width, isText] : kFurtherColumns) {
    table.Columns.push_back({.Heading = heading,
                             .Width = width,
                             .Order = isText ? CellOrder::Text : CellOrder::LeadingNumber,
                             .IsText = isText});
  }
  for (std::size_t row = 0; row < table.Rows.size(); ++row) {
    AppendFurther(session, facts, static_cast<int>(row) + 1, table.Rows[row].Cells);
  }
  FillWays(table, session, facts.Selected);
  return table;
}

std::pair<std::size_t, std::size_t> FillWays(PlanetGrid& table, const GameSession& session,
                                             int selected) {
  const std::size_t first = table.Columns.size() - kFurtherColumns.size() + kWays;
  for (int planet = 1; planet <= session.PlanetCount; ++planet) {
    std::vector<std::string>& cells = table.Rows.at(static_cast<std::size_t>(planet) - 1).Cells;
    const auto tell = [&](std::size_t column, std::string text) {
      cells.at(first + column) = std::move(text);
    };
    if (selected == 0) {
      for (std::size_t column = 0; column < kWayColumns; ++column) tell(column, "");
      continue;
    }
    const PlanetRecord& from = session.Planet(selected);
    const PlanetRecord& to = session.Planet(planet);
    const double lightYears = LightYearsBetween(from, to);
    tell(0, OneDecimalText(lightYears));
    tell(1, NumberText(YearsAtWarp(lightYears, kListedWarp)));
    tell(2, planet == selected ? "" : GateCell(GateWayBetween(from, to)));
  }
  return {first, first + kWayColumns - 1};
}

std::string ColumnName(const PlanetGridColumn& column) {
  std::string name(Trimmed(column.Heading));
  for (std::size_t at = name.find("\r\n"); at != name.npos; at = name.find("\r\n", at)) {
    name.replace(at, 2, " ");
  }
  return name;
}

std::optional<std::size_t> ColumnNamed(const PlanetGrid& table, std::string_view name) {
  const auto found = std::ranges::find(table.Columns, name, ColumnName);
  if (found == table.Columns.end()) return std::nullopt;
  return static_cast<std::size_t>(found - table.Columns.begin());
}

void ClickColumn(std::vector<ColumnSort>& sorting, const std::string& column, bool adds) {
  const auto known = std::ranges::find(sorting, column, &ColumnSort::Column);
  const bool isKnown = known != sorting.end();
  if (isKnown && (adds || sorting.size() == 1)) {
    known->IsDescending = !known->IsDescending;
    return;
  }
  if (!adds) sorting.clear();
  sorting.push_back({.Column = column});
}

std::vector<std::size_t> TableOrder(const PlanetGrid& table,
                                    const std::vector<ColumnSort>& sorting) {
  std::vector<std::size_t> order(table.Rows.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  for (auto sort = sorting.rbegin(); sort != sorting.rend(); ++sort) {
    const std::optional<std::size_t> column = ColumnNamed(table, sort->Column);
    if (!column) continue;
    order = SortedRows(table, *column,
                       sort->IsDescending ? SortDirection::Descending : SortDirection::Ascending,
                       std::move(order));
  }
  return order;
}

std::vector<ColumnPlace> ArrangeColumns(const PlanetGrid& table,
                                        const std::vector<ColumnPlace>& kept) {
  std::vector<ColumnPlace> places;
  for (const ColumnPlace& place : kept) {
    const bool isTwice =
        std::ranges::find(places, place.Column, &ColumnPlace::Column) != places.end();
    if (ColumnNamed(table, place.Column) && !isTwice) places.push_back(place);
  }
  std::vector<ColumnPlace> first;
  for (const std::string& name : NamesInFirstOrder(table)) first.push_back({.Column = name});
  return WithOtherColumns(std::move(places), first);
}

std::vector<ColumnPlace> WithOtherColumns(std::vector<ColumnPlace> places,
                                          const std::vector<ColumnPlace>& kept) {
  auto behind = places.begin();
  for (const ColumnPlace& place : kept) {
    auto known = std::ranges::find(places, place.Column, &ColumnPlace::Column);
    if (known == places.end()) known = places.insert(behind, place);
    behind = std::next(known);
  }
  return places;
}

}  // namespace quorvane
