#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "influence/influence_loops.h"
#include "influence/influence_values.h"

namespace quorvane {

/// Who may hold the points of a tile.
struct Contest {
  /// The player who is certain to reach the largest sum, the lower number among equals; 0: nobody
  /// is certain of any.
  int Leader = 0;
  /// The sum that the leader is certain to reach; no winning sum is smaller.
  int LeastWinningSum = 0;
  /// A bit for each player whose sum may be the winning one at some point.
  std::uint32_t Contenders = 0;

  /// A bit for each player whose planets matter: where nobody leads, some points may be reached
  /// without a winner, and that counts, too.
  std::uint32_t OwnersThatMatter() const { return Leader == 0 ? ~0U : Contenders; }
  /// Whether the leader holds every point with full strength.
  bool IsSettled() const { return LeastWinningSum >= kFullStrength && Contenders == 1U << Leader; }
};

/// A strip of grid columns, cut into tiles. It finds out from the edges of each tile alone who may
/// hold its points: a planet gives most at the point nearest to it and least at the one farthest
/// from it, and as no share is negative, the bounds of the shares add up to bounds of the sums.
class InfluenceStrip {
 public:
  /// @param tileRows  where the tiles of every strip begin and end
  /// @param playerCount  players behind it reach points, but hold none
  InfluenceStrip(const InfluenceRule& rule, const InfluenceLoops& loops,
                 const std::vector<LightYears>& tileRows, int playerCount);

  /// Goes to the strip of these columns.
  /// @param planets  all planets, in map order
  void GoTo(LightYears columns, std::span<const RadiatingPlanet> planets);
  Contest ContestFor(int tile) const;
  /// The planets that may reach a tile and whose owners may hold points there, in map order.
  /// @return good until the next call
  std::span<const RadiatingPlanet> PlanetsFor(int tile, const Contest& contest);

 private:
  void FindNearPlanets(LightYears columns, std::span<const RadiatingPlanet> planets);
  int TileAt(float y) const;
  void FindLeaders();
  void FindContenders();
  const int* CutRow(std::vector<int>& sums, int player) const;

  const InfluenceRule& rule_;
  const InfluenceLoops& loops_;
  int playerCount_;
  int lastTile_;
  float tilesPerLightYear_;
  std::vector<std::size_t> nearNumbers_;
  std::vector<PlanetInReach> nearPlanets_;
  InfluenceList planetsForTile_;
  // For each tile; room for whole blocks.
  std::size_t tileCount_;
  std::vector<float> first_;
  std::vector<float> last_;
  std::vector<int> atLeast_;  // for each player a row
  std::vector<int> atMost_;
  std::vector<int> leaders_;
  std::vector<int> leastWinningSums_;
  std::vector<int> contenders_;
};

}  // namespace quorvane
