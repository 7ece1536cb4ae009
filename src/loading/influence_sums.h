#pragma once

#include <array>
#include <span>
#include <vector>

#include "loading/influence_bounds.h"
#include "loading/influence_values.h"
#include "model/game_choice.h"
#include "model/influence_grid.h"

namespace quorvane {

/// Where a grid point lies, in light years.
struct InfluencePlace {
  int X = 0;
  int Y = 0;
};

/// Sums the influence of planets at single places.
class InfluenceSums {
 public:
  /// @param playerCount  players behind it reach places, but hold none
  InfluenceSums(InfluenceDistances distances, int playerCount)
      : distances_(distances), playerCount_(playerCount) {}

  /// Who holds each place, and how firmly: the player with the largest sum, the lower number among
  /// equals, with that sum, at most 100, as strength; nobody where all sums are 0.
  /// @param planets  in map order, which decides how exact halves are rounded
  /// @return one point per place, good until the next call
  std::span<const InfluencePoint> Holders(std::span<const RadiatingPlanet> planets,
                                          std::span<const InfluencePlace> places);

 private:
  void SumPlanets(std::span<const RadiatingPlanet> planets, std::span<const InfluencePlace> places);
  void ComparePlayer(int player);

  InfluenceDistances distances_;
  int playerCount_;
  std::array<std::vector<int>, kMaxPlayers + 1> sums_;  // empty for players without planets
  std::vector<InfluencePoint> points_;
};

}  // namespace quorvane
