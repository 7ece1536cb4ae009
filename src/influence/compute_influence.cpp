#include "influence/compute_influence.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <vector>

#include "influence/influence_bounds.h"
#include "influence/influence_loops.h"
#include "influence/influence_sums.h"
#include "influence/influence_values.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

// After so many planets in summed tiles the windows may answer: some milliseconds, where a strip of
// a crowded universe may take a hundred.
constexpr std::size_t kPlanetsBetweenQuestions = 50'000;

// Every planet with a sphere and an owner, in map order.
InfluenceList ListPlanets(const GameSession& session) {
  InfluenceList planets;
  std::map<int, ShareKind> kinds;  // by radius
  for (const PlanetRecord& planet : session.Planets()) {
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
        sums_(rule_, loops) {}

  /// @return false when the user stopped it
  bool ComputeColumns(GridRange columns, const Progress& progress);
  void StoreTerritories();

 private:
  float LineAt(int step) const { return lines_[static_cast<std::size_t>(step)]; }
  LightYears Extent(GridRange range) const {
    return {LineAt(range.First), LineAt(range.First + range.Count - 1)};
  }
  // The points of a column follow each other.
  InfluencePoint* FirstPoint(const Tile& tile, int column) {
    return &session_.InfluenceGrid.At(tile.Columns.First + column, tile.Rows.First);
  }
  void FillTile(const Tile& tile, InfluencePoint point);
  void SumTile(const Tile& tile, std::span<const RadiatingPlanet> planets, const Contest& contest);
  void PlaceColumns(GridRange columns);
  void PlaceRows(GridRange rows);
  void StoreTile(const Tile& tile, const TileHolders& holders);

  GameSession& session_;
  InfluenceRule rule_;
  InfluenceList planets_;
  std::vector<float> lines_;
  InfluenceStrip strip_;
  InfluenceSums sums_;
  TilePlaces places_;
  // By the row in its tile: adding one to the same count again and again would be slower.
  std::array<std::array<int, kMaxPlayers + 1>, kTileRows> pointsHeld_ = {};
  std::size_t planetsSinceQuestion_ = 0;
};

bool InfluenceRun::ComputeColumns(GridRange columns, const Progress& progress) {
  strip_.GoTo(Extent(columns), planets_);
  PlaceColumns(columns);
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
    planetsSinceQuestion_ += planets.size();
    if (planetsSinceQuestion_ < kPlanetsBetweenQuestions) continue;
    planetsSinceQuestion_ = 0;
    if (progress.IsStopped()) return false;
  }
  return !progress.IsStopped();
}

void InfluenceRun::FillTile(const Tile& tile, InfluencePoint point) {
  for (int column = 0; column < tile.Columns.Count; ++column) {
    std::fill_n(FirstPoint(tile, column), tile.Rows.Count, point);
  }
  pointsHeld_[0][static_cast<std::size_t>(point.Holder)] += tile.Columns.Count * tile.Rows.Count;
}

void InfluenceRun::SumTile(const Tile& tile, std::span<const RadiatingPlanet> planets,
                           const Contest& contest) {
  PlaceRows(tile.Rows);
  StoreTile(tile, sums_.Holders(planets, places_, contest));
}

// A tile at the grid's end repeats its last column and row.
void InfluenceRun::PlaceColumns(GridRange columns) {
  places_.Columns = Extent(columns);
  for (int column = 0; column < kTileColumns; ++column) {
    const float x = LineAt(columns.First + std::min(column, columns.Count - 1));
    std::fill_n(places_.X.data() + std::ptrdiff_t{column} * kTileRows, kTileRows, x);
  }
}

void InfluenceRun::PlaceRows(GridRange rows) {
  places_.Rows = Extent(rows);
  std::array<float, kTileRows> y = {};
  for (int row = 0; row < kTileRows; ++row) {
    y[static_cast<std::size_t>(row)] = LineAt(rows.First + std::min(row, rows.Count - 1));
  }
  for (int column = 0; column < kTileColumns; ++column) {
    std::ranges::copy(y, places_.Y.data() + std::ptrdiff_t{column} * kTileRows);
  }
}

// A point that nobody reaches counts for nobody, not even as reached but held by nobody.
void InfluenceRun::StoreTile(const Tile& tile, const TileHolders& holders) {
  for (int column = 0; column < tile.Columns.Count; ++column) {
    const std::size_t first = static_cast<std::size_t>(column) * kTileRows;
    InfluencePoint* const points = FirstPoint(tile, column);
    for (std::size_t row = 0; row < static_cast<std::size_t>(tile.Rows.Count); ++row) {
      const InfluencePoint point = holders.Points[first + row];
      points[row] = point;
      const bool counts = point.Holder != 0 || holders.IsReached.At[first + row] != 0;
      pointsHeld_[row][static_cast<std::size_t>(point.Holder)] += counts ? 1 : 0;
    }
  }
}

void InfluenceRun::StoreTerritories() {
  for (std::size_t player = 0; player <= kMaxPlayers; ++player) {
    int points = 0;
    for (const auto& counts : pointsHeld_) points += counts[player];
    FieldValue& territory = session_.PlayerTable[player][PlayerField::Territory];
    territory = points > 0 ? FieldValue(points) : FieldValue();
  }
}

}  // namespace

bool ComputeInfluence(GameSession& session, const Progress& progress, InfluenceVectors vectors) {
  const int allColumns = session.GridSize + 1;
  session.CreateInfluenceGrid(session.GridSize);
  progress.Show(0, allColumns);
  InfluenceRun run(session, LoopsFor(vectors));
  for (int column = 0; column < allColumns; column += kTileColumns) {
    if (!run.ComputeColumns({column, std::min(kTileColumns, allColumns - column)}, progress)) {
      return false;
    }
    progress.Show(column, allColumns);
  }
  run.StoreTerritories();
  progress.Show(allColumns, allColumns);
  return true;
}

}  // namespace quorvane
