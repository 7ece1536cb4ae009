#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "map/map_key.h"
#include "map/overlays.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr int kFullStrength = 100;  // percent
constexpr int kColumnsPerProgressStep = 10;
constexpr int kEdgeWidth = 1;          // at full view, beside that of the picture
constexpr double kEdgeDistance = 1.5;  // grid steps on either side of a change of holder

// Where the grid's columns (or rows) are drawn; nothing for those outside the window.
using GridLines = std::vector<std::optional<double>>;

// `project` gives the picture coordinate of a stored one that is in view.
template <typename Project>
GridLines LinesInView(const GameSession& session, const Project& project) {
  GridLines lines;
  for (int step = 0; step <= session.InfluenceGrid.Size(); ++step) {
    lines.push_back(project(ToWhole16(step * session.GridCellSize)));
  }
  return lines;
}

GridLines ColumnsInView(const GameSession& session, const MapView& view) {
  return LinesInView(session, [&](int x) -> std::optional<double> {
    if (!view.ContainsX(x)) return std::nullopt;
    return view.ToSurface({static_cast<double>(x), 0}).X;
  });
}

GridLines RowsInView(const GameSession& session, const MapView& view) {
  return LinesInView(session, [&](int y) -> std::optional<double> {
    if (!view.ContainsY(y)) return std::nullopt;
    return view.ToSurface({0, static_cast<double>(y)}).Y;
  });
}

// Adds a player's colour at every strength to a palette; nothing for a player without a colour.
// @return the number of the colour at strength 0, or 0 for nobody and for such a player
std::uint16_t AddShades(const GameSession& session, int player, std::vector<Colour>& palette) {
  const Colour* full = session.ColourOf(player);
  if (full == nullptr) return 0;
  const auto first = static_cast<std::uint16_t>(palette.size());
  for (int strength = 0; strength <= kFullStrength; ++strength) {
    // Divided first, unlike `TimesHundredths`: 7 % of 150 is a hair above 10.5, and a shade of 11.
    const auto byStrength = [&](int component) { return ToWhole16(strength / 100.0 * component); };
    palette.push_back({byStrength(full->Red), byStrength(full->Green), byStrength(full->Blue)});
  }
  return first;
}

// The number of each player's first shade.
using FirstShades = std::array<std::uint16_t, kMaxPlayers + 1>;

void AddColumn(const InfluenceGrid& grid, const FirstShades& firstShades, int gx, double x,
               const GridLines& rows, PointGrid& points) {
  points.Columns.push_back(x);
  for (int gy = 0; gy <= grid.Size(); ++gy) {
    if (!rows[static_cast<std::size_t>(gy)]) continue;
    const InfluencePoint& point = grid.At(gx, gy);
    const int first = firstShades[static_cast<std::size_t>(point.Holder)];
    points.Numbers.push_back(static_cast<std::uint16_t>(first > 0 ? first + point.Strength : 0));
  }
}

Pen DotPen(const MapView& view, int mapWidthInTwips, int widthAtFullView) {
  const int twipsPerUnit = mapWidthInTwips / kSurfaceUnits;  // without the fraction
  const int width = view.IsFull() ? twipsPerUnit + widthAtFullView
                                  : ToWhole16(view.ZoomFactor() * (twipsPerUnit + 1) / 1.1);
  return {.Mode = DrawMode::Copy,
          .Style = DrawStyle::Solid,
          .Filled = false,
          .Width = std::max(width, 1)};
}

// The farthest that two neighbouring lines in view lie apart. They stand at whole light years, so
// their distances differ.
double WidestGap(const GridLines& lines) {
  double gap = 0;
  for (std::size_t line = 1; line < lines.size(); ++line) {
    if (lines[line - 1] && lines[line]) gap = std::max(gap, *lines[line] - *lines[line - 1]);
  }
  return gap;
}

// Draws both sides of the line between two neighbouring grid points, where there is one.
void DrawEdge(const GameSession& session, int holder, int nextHolder, SurfacePoint before,
              SurfacePoint behind, DrawingSurface& surface) {
  if (holder == nextHolder) return;
  if (const Colour* colour = session.ColourOf(holder)) surface.Point(before, *colour);
  if (const Colour* colour = session.ColourOf(nextHolder)) surface.Point(behind, *colour);
}

void DrawEdgesBetweenRows(const GameSession& session, const MapView& view, const GridLines& columns,
                          const GridLines& rows, DrawingSurface& surface) {
  const InfluenceGrid& grid = session.InfluenceGrid;
  const auto surfaceY = [&](double gy) { return view.ToSurface({0, gy * session.GridCellSize}).Y; };
  for (int gx = 0; gx <= grid.Size(); ++gx) {
    const std::optional<double>& x = columns[static_cast<std::size_t>(gx)];
    if (!x) continue;
    for (int gy = 0; gy < grid.Size(); ++gy) {
      if (!rows[static_cast<std::size_t>(gy)]) continue;
      DrawEdge(session, grid.At(gx, gy).Holder, grid.At(gx, gy + 1).Holder,
               {*x, surfaceY(gy - kEdgeDistance)}, {*x, surfaceY(gy + kEdgeDistance)}, surface);
    }
  }
}

// For each row of the grid, the columns in view behind which the holder changes. The grid lies in
// memory column by column, and is by far quickest read like that.
std::vector<std::vector<int>> ChangesInRows(const InfluenceGrid& grid, const GridLines& columns) {
  std::vector<std::vector<int>> changes(static_cast<std::size_t>(grid.Size() + 1));
  for (int gx = 0; gx < grid.Size(); ++gx) {
    if (!columns[static_cast<std::size_t>(gx)]) continue;
    for (int gy = 0; gy <= grid.Size(); ++gy) {
      if (grid.At(gx, gy).Holder == grid.At(gx + 1, gy).Holder) continue;
      changes[static_cast<std::size_t>(gy)].push_back(gx);
    }
  }
  return changes;
}

void DrawEdgesBetweenColumns(const GameSession& session, const MapView& view,
                             const GridLines& columns, const GridLines& rows,
                             DrawingSurface& surface) {
  const InfluenceGrid& grid = session.InfluenceGrid;
  const auto surfaceX = [&](double gx) { return view.ToSurface({gx * session.GridCellSize, 0}).X; };
  const std::vector<std::vector<int>> changes = ChangesInRows(grid, columns);
  for (int gy = 0; gy <= grid.Size(); ++gy) {
    const std::optional<double>& y = rows[static_cast<std::size_t>(gy)];
    if (!y) continue;
    for (const int gx : changes[static_cast<std::size_t>(gy)]) {
      DrawEdge(session, grid.At(gx, gy).Holder, grid.At(gx + 1, gy).Holder,
               {surfaceX(gx - kEdgeDistance), *y}, {surfaceX(gx + kEdgeDistance), *y}, surface);
    }
  }
}

}  // namespace

bool DrawInfluenceBorders(const GameSession& session, const MapView& view, DrawingSurface& surface,
                          const Progress& progress) {
  const InfluenceGrid& grid = session.InfluenceGrid;
  if (grid.Size() < 0) return true;  // no game is loaded
  PointGrid points;
  FirstShades firstShades;
  for (int player = 0; player <= kMaxPlayers; ++player) {
    firstShades[static_cast<std::size_t>(player)] = AddShades(session, player, points.Palette);
  }
  const GridLines columns = ColumnsInView(session, view);
  const GridLines rows = RowsInView(session, view);
  for (const std::optional<double>& y : rows) {
    if (y) points.Rows.push_back(*y);
  }

  progress.Show(0, grid.Size() + 1);
  Pen pen = DotPen(view, surface.WidthInTwips(), 2);
  // The rule leaves gaps at some sizes and zooms; territories are closed areas at all of them.
  const double gap = std::max(WidestGap(columns), WidestGap(rows));
  pen.Width = std::max(pen.Width, surface.WidthToCover(gap));
  surface.SetPen(pen);
  for (int gx = 0; gx <= grid.Size(); ++gx) {
    const std::optional<double>& x = columns[static_cast<std::size_t>(gx)];
    if (x) AddColumn(grid, firstShades, gx, *x, rows, points);
    if (gx % kColumnsPerProgressStep != 0) continue;
    progress.Show(gx, grid.Size() + 1);
    if (progress.IsStopped()) return false;
  }
  surface.Points(points);
  progress.Show(grid.Size() + 1, grid.Size() + 1);
  return true;
}

void DrawTerritoryEdges(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  const GridLines columns = ColumnsInView(session, view);
  const GridLines rows = RowsInView(session, view);
  surface.SetPen(DotPen(view, surface.WidthInTwips(), kEdgeWidth));
  DrawEdgesBetweenRows(session, view, columns, rows, surface);
  DrawEdgesBetweenColumns(session, view, columns, rows, surface);
}

namespace {

// A piece of territory, closed as on the map.
KeyLine TerritoryKeyLine(const char* words, const GameSession& session, int strength) {
  constexpr double kReach = 100;
  std::vector<Colour> shades;
  AddShades(session, SampleRace(session), shades);
  const Colour shade =
      shades.empty() ? SampleRaceColour(session) : shades[static_cast<std::size_t>(strength)];
  const auto draw = [shade](DrawingSurface& surface, SurfacePoint at) {
    surface.SetPen({.Width = surface.WidthToCover(2 * kReach)});
    surface.Point(at, shade);
  };
  return {words, draw, kReach};
}

}  // namespace

std::vector<KeyLine> InfluenceKey(const KeyAsked& asked) {
  return {TerritoryKeyLine("territory in its holder's colour", asked.Session, kFullStrength),
          TerritoryKeyLine("darker: held less firmly", asked.Session, kFullStrength / 2)};
}

std::vector<KeyLine> TerritoryEdgesKey(const KeyAsked& asked) {
  constexpr int kSteps = 8;  // of the grid, on either side
  MapView whole;             // the sample is as large as there
  whole.ShowAll(asked.View.UniverseExtent);
  const double step = asked.Session.GridCellSize * whole.MapScale;
  const auto draw = [pen = DotPen(whole, asked.MapWidthInTwips, kEdgeWidth), step,
                     colours = SampleNeighbours(asked.Session)](DrawingSurface& surface,
                                                                SurfacePoint at) {
    surface.SetPen(pen);
    for (int column = -kSteps; column <= kSteps; ++column) {
      const double x = at.X + column * step;
      surface.Point({x, at.Y - kEdgeDistance * step}, colours.first);
      surface.Point({x, at.Y + kEdgeDistance * step}, colours.second);
    }
  };
  return {{"lines in both holders' colours: a border", draw, kSteps * step}};
}

}  // namespace quorvane
