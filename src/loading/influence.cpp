#include "loading/influence.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "loading/influence_bounds.h"
#include "loading/influence_sums.h"
#include "loading/influence_values.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr int kStripColumns = 10;  // the steps in which progress is shown
// With so few points, summing them all costs less than to bound the halves first.
constexpr int kSmallTile = 30;

// Every planet with a sphere and an owner, in map order.
InfluenceList ListPlanets(const GameSession& session, InfluenceTables& tables) {
  InfluenceList planets;
  for (int i = 1; i <= session.PlanetCount; ++i) {
    const PlanetRecord& planet = session.Planet(i);
    const auto whole = [&](PlanetField field) { return ToWhole16(planet[field].Number()); };
    const int radius = whole(PlanetField::SoiRadius);
    const std::int16_t owner = whole(PlanetField::OwnerIndex);
    if (radius <= 0 || owner <= 0 || owner > kMaxPlayers) continue;
    planets.push_back(
        {whole(PlanetField::X), whole(PlanetField::Y), owner, &tables.OfRadius(radius)});
  }
  return planets;
}

// Where the grid's columns, and likewise its rows, lie.
std::vector<int> GridLines(const GameSession& session) {
  std::vector<int> lightYears;
  for (int step = 0; step <= session.GridSize; ++step) {
    lightYears.push_back(ToWhole32(step * session.GridCellSize));
  }
  return lightYears;
}

// A run of grid columns or rows.
struct GridRange {
  int First = 0;
  int Count = 0;

  GridRange FirstHalf() const { return {First, Count / 2}; }
  GridRange SecondHalf() const { return {First + Count / 2, Count - Count / 2}; }
};

// A rectangle of grid points.
struct Tile {
  GridRange Columns;
  GridRange Rows;

  int PointCount() const { return Columns.Count * Rows.Count; }
  std::pair<Tile, Tile> Halves() const {
    if (Rows.Count >= Columns.Count) {
      return {{Columns, Rows.FirstHalf()}, {Columns, Rows.SecondHalf()}};
    }
    return {{Columns.FirstHalf(), Rows}, {Columns.SecondHalf(), Rows}};
  }
  template <typename Visit>
  void ForEachPoint(Visit visit) const {
    for (int column = 0; column < Columns.Count; ++column) {
      for (int row = 0; row < Rows.Count; ++row) visit(Columns.First + column, Rows.First + row);
    }
  }
};

// The way over the grid. A tile that lies deep in somebody's space is decided as a whole, any other
// one is halved, and only the small tiles that are left, along borders and edges, are summed.
class InfluenceRun {
 public:
  explicit InfluenceRun(GameSession& session)
      : session_(session),
        tables_(session.SoiSetting),
        planets_(ListPlanets(session, tables_)),
        lines_(GridLines(session)) {}

  void ComputeColumns(GridRange columns) {
    ComputeTile({columns, {0, session_.GridSize + 1}}, planets_);
  }
  void StoreTerritories();

 private:
  int LineAt(int step) const { return lines_[static_cast<std::size_t>(step)]; }
  LightYears Extent(GridRange range) const {
    return {LineAt(range.First), LineAt(range.First + range.Count - 1)};
  }
  void ComputeTile(const Tile& tile, std::span<const RadiatingPlanet> planets);
  void FillTile(const Tile& tile, InfluencePoint point);
  void SumTile(const Tile& tile, std::span<const RadiatingPlanet> planets);
  bool IsReached(InfluencePlace place, std::span<const RadiatingPlanet> planets) const;

  GameSession& session_;
  InfluenceTables tables_;
  InfluenceList planets_;
  std::vector<int> lines_;
  InfluenceSums sums_{tables_.Distances(), session_.PlayerCount};
  std::vector<InfluencePlace> places_;
  std::array<int, kMaxPlayers + 1> pointsHeld_ = {};
};

void InfluenceRun::ComputeTile(const Tile& tile, std::span<const RadiatingPlanet> planets) {
  const Contest contest = FindContest(planets, {Extent(tile.Columns), Extent(tile.Rows)},
                                      tables_.Distances(), session_.PlayerCount);
  if (contest.Planets.empty()) return;
  if (!contest.IsOpen && contest.LeastWinningSum >= kFullStrength) {
    FillTile(tile, {static_cast<std::int16_t>(contest.Leader), kFullStrength});
  } else if (tile.PointCount() <= kSmallTile) {
    SumTile(tile, contest.Planets);
  } else {
    const auto [first, second] = tile.Halves();
    ComputeTile(first, contest.Planets);
    ComputeTile(second, contest.Planets);
  }
}

void InfluenceRun::FillTile(const Tile& tile, InfluencePoint point) {
  tile.ForEachPoint([&](int gx, int gy) { session_.InfluenceGrid.At(gx, gy) = point; });
  pointsHeld_[static_cast<std::size_t>(point.Holder)] += tile.PointCount();
}

void InfluenceRun::SumTile(const Tile& tile, std::span<const RadiatingPlanet> planets) {
  places_.clear();
  tile.ForEachPoint([&](int gx, int gy) { places_.push_back({LineAt(gx), LineAt(gy)}); });
  const std::span<const InfluencePoint> points = sums_.Holders(planets, places_);
  std::size_t index = 0;
  tile.ForEachPoint([&](int gx, int gy) {
    const InfluencePlace place = places_[index];
    const InfluencePoint point = points[index++];
    // A point that nobody reaches counts for nobody, not even as reached but held by nobody.
    if (point.Holder == 0 && !IsReached(place, planets)) return;
    session_.InfluenceGrid.At(gx, gy) = point;
    ++pointsHeld_[static_cast<std::size_t>(point.Holder)];
  });
}

bool InfluenceRun::IsReached(InfluencePlace place, std::span<const RadiatingPlanet> planets) const {
  const InfluenceDistances distances = tables_.Distances();
  return std::ranges::any_of(planets, [&](const RadiatingPlanet& planet) {
    return distances.IsReached(distances.Between(planet.X - place.X, planet.Y - place.Y));
  });
}

void InfluenceRun::StoreTerritories() {
  for (std::size_t player = 0; player < pointsHeld_.size(); ++player) {
    FieldValue& territory = session_.PlayerTable[player][PlayerField::Territory];
    territory = pointsHeld_[player] > 0 ? FieldValue(pointsHeld_[player]) : FieldValue();
  }
}

}  // namespace

bool ComputeInfluence(GameSession& session, const Progress& progress) {
  const int allColumns = session.GridSize + 1;
  session.CreateInfluenceGrid(session.GridSize);
  progress.Show(0, allColumns);
  InfluenceRun run(session);
  for (int column = 0; column < allColumns; column += kStripColumns) {
    run.ComputeColumns({column, std::min(kStripColumns, allColumns - column)});
    progress.Show(column, allColumns);
    if (progress.IsStopped()) return false;
  }
  run.StoreTerritories();
  progress.Show(allColumns, allColumns);
  return true;
}

}  // namespace quorvane
