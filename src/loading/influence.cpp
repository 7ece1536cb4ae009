#include "loading/influence.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <vector>

#include "loading/influence_bounds.h"
#include "loading/influence_loops.h"
#include "loading/influence_sums.h"
#include "loading/influence_values.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

// After so many planets in summed tiles progress is shown again, so that the window stays alive:
// some milliseconds, where a strip of a crowded universe may take a hundred.
constexpr std::size_t kPlanetsBetweenSigns = 50'000;

// Every planet with a sphere and an owner, in map order.
std::vector<RadiatingPlanet> ListPlanets(const GameSession& session) {
  std::vector<RadiatingPlanet> planets;
  std::map<int, ShareKind> kinds;  // by radius
  for (int i = 1; i <= session.PlanetCount; ++i) {
    const PlanetRecord& planet = session.Planet(i);
    const auto whole = [&](PlanetField field) { return ToWhole16(planet[field].Number()); };
    const std::int16_t radius = whole(PlanetField::SoiRadius);
    const std::int16_t owner = whole(PlanetField::OwnerIndex);
    if (radius <= 0 || owner <= 0 || owner > kMaxPlayers) continue;
    const auto [kind, isNew] = kinds.try_emplace(radius);
    if (isNew) kind->second = ShareKindOf(session.SoiSetting, radius);
    planets.push_back({.X = static_cast<float>(whole(PlanetField::X)),
                       .Y = static_cast<float>(whole(PlanetField::Y)),
                       .Radius = static_cast<float>(radius),
                       .Owner = owner,
                       .Kind = kind->second});
  }
  return planets;
}

// Where the grid's columns, and likewise its rows, lie.
std::vector<float> GridLines(const GameSession& session) {
  std::vector<float> lightYears;
  for (int step = 0; step <= session.GridSize; ++step) {
    lightYears.push_back(static_cast<float>(ToWhole32(step * session.GridCellSize)));
  }
  return lightYears;
}

// A run of grid columns or rows.
struct GridRange {
  int First = 0;
  int Count = 0;
};

// A rectangle of grid points, at most of `kTileColumns` and `kTileRows`.
struct Tile {
  GridRange Columns;
  GridRange Rows;
};

// Where the tiles of a strip begin and end.
std::vector<LightYears> TileRows(const std::vector<float>& lines) {
  std::vector<LightYears> rows;
  for (std::size_t first = 0; first < lines.size(); first += kTileRows) {
    rows.push_back({lines[first], lines[std::min(first + kTileRows, lines.size()) - 1]});
  }
  return rows;
}

// The way over the grid, strip of columns by strip, each of which is cut into tiles. A tile that
// lies deep in somebody's space is decided as a whole; others, along borders and edges, are summed.
class InfluenceRun {
 public:
  InfluenceRun(GameSession& session, const InfluenceLoops& loops)
      : session_(session),
        rule_(session.SoiSetting),
        planets_(ListPlanets(session)),
        lines_(GridLines(session)),
        strip_(rule_, loops, TileRows(lines_), session.PlayerCount),
        sums_(rule_, loops, session.PlayerCount) {}

  /// @param showSign  called every few milliseconds
  template <typename ShowSign>
  void ComputeColumns(GridRange columns, const ShowSign& showSign);
  void StoreTerritories();

 private:
  float LineAt(int step) const { return lines_[static_cast<std::size_t>(step)]; }
  LightYears Extent(GridRange range) const {
    return {LineAt(range.First), LineAt(range.First + range.Count - 1)};
  }
  void FillTile(const Tile& tile, InfluencePoint point);
  void SumTile(const Tile& tile, std::span<const RadiatingPlanet> planets, const Contest& contest);
  void PlacePoints(const Tile& tile);
  void StoreTile(const Tile& tile, const TileHolders& holders);

  GameSession& session_;
  InfluenceRule rule_;
  std::vector<RadiatingPlanet> planets_;
  std::vector<float> lines_;
  InfluenceStrip strip_;
  InfluenceSums sums_;
  TilePlaces places_;
  std::array<int, kMaxPlayers + 1> pointsHeld_ = {};
  std::size_t planetsSinceSign_ = 0;
};

template <typename ShowSign>
void InfluenceRun::ComputeColumns(GridRange columns, const ShowSign& showSign) {
  strip_.GoTo(Extent(columns), planets_);
  const int allRows = session_.GridSize + 1;
  for (int row = 0; row < allRows; row += kTileRows) {
    const Tile tile = {columns, {row, std::min(kTileRows, allRows - row)}};
    const Contest contest = strip_.ContestFor(row / kTileRows);
    if (contest.IsSettled()) {
      FillTile(tile, {static_cast<std::int16_t>(contest.Leader), kFullStrength});
      continue;
    }
    const std::span<const RadiatingPlanet> planets = strip_.PlanetsFor(row / kTileRows, contest);
    if (planets.empty()) continue;
    SumTile(tile, planets, contest);
    planetsSinceSign_ += planets.size();
    if (planetsSinceSign_ < kPlanetsBetweenSigns) continue;
    planetsSinceSign_ = 0;
    showSign();
  }
}

void InfluenceRun::FillTile(const Tile& tile, InfluencePoint point) {
  for (int column = 0; column < tile.Columns.Count; ++column) {
    InfluencePoint* const points =
        &session_.InfluenceGrid.At(tile.Columns.First + column, tile.Rows.First);
    std::fill_n(points, tile.Rows.Count, point);
  }
  pointsHeld_[static_cast<std::size_t>(point.Holder)] += tile.Columns.Count * tile.Rows.Count;
}

void InfluenceRun::SumTile(const Tile& tile, std::span<const RadiatingPlanet> planets,
                           const Contest& contest) {
  PlacePoints(tile);
  StoreTile(tile, sums_.Holders(planets, places_, contest));
}

// A tile at the grid's end repeats its last points.
void InfluenceRun::PlacePoints(const Tile& tile) {
  std::size_t index = 0;
  for (int column = 0; column < kTileColumns; ++column) {
    for (int row = 0; row < kTileRows; ++row, ++index) {
      places_.X[index] = LineAt(tile.Columns.First + std::min(column, tile.Columns.Count - 1));
      places_.Y[index] = LineAt(tile.Rows.First + std::min(row, tile.Rows.Count - 1));
    }
  }
  places_.Columns = Extent(tile.Columns);
  places_.Rows = Extent(tile.Rows);
}

void InfluenceRun::StoreTile(const Tile& tile, const TileHolders& holders) {
  for (int column = 0; column < tile.Columns.Count; ++column) {
    for (int row = 0; row < tile.Rows.Count; ++row) {
      const auto index = static_cast<std::size_t>(column * kTileRows + row);
      const InfluencePoint point = holders.Points[index];
      // A point that nobody reaches counts for nobody, not even as reached but held by nobody.
      if (point.Holder == 0 && holders.IsReached.At[index] == 0) continue;
      session_.InfluenceGrid.At(tile.Columns.First + column, tile.Rows.First + row) = point;
      ++pointsHeld_[static_cast<std::size_t>(point.Holder)];
    }
  }
}

void InfluenceRun::StoreTerritories() {
  for (std::size_t player = 0; player < pointsHeld_.size(); ++player) {
    FieldValue& territory = session_.PlayerTable[player][PlayerField::Territory];
    territory = pointsHeld_[player] > 0 ? FieldValue(pointsHeld_[player]) : FieldValue();
  }
}

}  // namespace

void ComputeInfluence(GameSession& session, const ShowProgress& showProgress,
                      InfluenceVectors vectors) {
  const int allColumns = session.GridSize + 1;
  int shown = 0;
  const auto show = [&] {
    if (showProgress) showProgress(shown, allColumns);
  };
  session.CreateInfluenceGrid(session.GridSize);
  show();
  InfluenceRun run(session, vectors == InfluenceVectors::Widest ? WidestInfluenceLoops()
                                                                : NarrowInfluenceLoops());
  for (int column = 0; column < allColumns; column += kTileColumns) {
    run.ComputeColumns({column, std::min(kTileColumns, allColumns - column)}, show);
    shown = column;
    show();
  }
  run.StoreTerritories();
  shown = allColumns;
  show();
}

}  // namespace quorvane
