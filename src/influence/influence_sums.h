#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "influence/influence_bounds.h"
#include "influence/influence_loops.h"
#include "model/influence_grid.h"

namespace quorvane {

/// Who holds the points of a tile.
struct TileHolders {
  std::array<InfluencePoint, kTilePoints> Points;  // column by column
  /// Whether a planet reaches the point; for points that somebody holds it is not looked up.
  TileNumbers IsReached;
};

/// Sums the influence of planets at the points of single tiles.
class InfluenceSums {
 public:
  InfluenceSums(const InfluenceRule& rule, const InfluenceLoops& loops)
      : rule_(rule), loops_(loops) {}

  /// Who holds each point, and how firmly: the player with the largest sum, the lower number among
  /// equals, with that sum, at most 100, as strength; nobody where all sums are 0.
  /// @param planets  in map order, which decides how exact halves are rounded
  /// @return good until the next call
  const TileHolders& Holders(std::span<const RadiatingPlanet> planets, const TilePlaces& places,
                             const Contest& contest);

 private:
  void BoundShares(std::span<const RadiatingPlanet> planets, const TilePlaces& places);
  std::uint32_t OwnersInOrder(std::span<const RadiatingPlanet> planets) const;
  void SortOut(std::span<const RadiatingPlanet> planets);
  /// @param players  a bit for each player who may hold points
  void CompareSums(std::uint32_t players);

  const InfluenceRule& rule_;
  const InfluenceLoops& loops_;
  // Of each planet's share.
  std::vector<int> atLeast_;
  std::vector<int> atMost_;
  std::vector<float> firstStep_;
  std::vector<float> secondStep_;
  // What is to be added: numbers for all points of an owner, steps, and other planets.
  std::array<int, kMaxPlayers + 1> constants_ = {};
  std::vector<ShareStep> steps_;
  InfluenceList others_;
  TileSums sums_;
  TileHolders holders_;
};

}  // namespace quorvane
