#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

#include "loading/influence_values.h"

namespace quorvane {

/// A planet that radiates influence, at its stored position.
struct RadiatingPlanet {
  std::int16_t X = 0;
  std::int16_t Y = 0;
  std::int16_t Owner = 0;  // 1 … 16
  const InfluenceByDistance* Influence = nullptr;
};

/// Planets that radiate, in map order: where exact halves meet, the order decides the rounding.
using InfluenceList = std::vector<RadiatingPlanet>;

/// A range of whole light years in one direction, both ends included.
struct LightYears {
  int First = 0;
  int Last = 0;

  int Nearest(int position) const { return std::max({First - position, 0, position - Last}); }
  int Farthest(int position) const { return std::max(position - First, Last - position); }
};

/// A rectangle of the universe.
struct LightYearArea {
  LightYears X;
  LightYears Y;
};

/// Who may hold the points of an area.
struct Contest {
  /// The planets that matter there, in map order: of those that reach the area, the ones of players
  /// whose sum may be the winning one at some point.
  InfluenceList Planets;
  /// The player who is certain to reach the largest sum, the lower number among equals; 0: nobody
  /// is certain of any, and every planet that reaches the area matters.
  int Leader = 0;
  /// The sum that the leader is certain to reach; no winning sum is smaller.
  int LeastWinningSum = 0;
  /// Whether other players than the leader may hold points.
  bool IsOpen = true;
};

/// Finds out from the edges of an area alone who may hold its points.
/// @param planets  all that may matter in the area, in map order
Contest FindContest(std::span<const RadiatingPlanet> planets, const LightYearArea& area,
                    InfluenceDistances distances, int playerCount);

}  // namespace quorvane
