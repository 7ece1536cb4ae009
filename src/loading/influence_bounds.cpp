#include "loading/influence_bounds.h"

#include <array>
#include <bitset>
#include <cstddef>

#include "model/game_choice.h"

namespace quorvane {
namespace {

using PlayerSet = std::bitset<kMaxPlayers + 1>;

// What every player's sum is at least and at most, anywhere in an area.
struct SumBounds {
  std::array<int, kMaxPlayers + 1> AtLeast = {};
  std::array<int, kMaxPlayers + 1> AtMost = {};
};

// A planet gives most at the point nearest to it and least at the one farthest from it. As no share
// is negative, the bounds of the shares add up to bounds of the sums.
// @param reaching  receives the planets that reach the area
SumBounds BoundSums(std::span<const RadiatingPlanet> planets, const LightYearArea& area,
                    InfluenceDistances distances, InfluenceList& reaching) {
  SumBounds bounds;
  for (const RadiatingPlanet& planet : planets) {
    const int nearX = area.X.Nearest(planet.X);
    const int nearY = area.Y.Nearest(planet.Y);
    // Planets far outside the universe would have squares beyond 32 bits.
    if (nearX > distances.Reach() || nearY > distances.Reach()) continue;
    const std::size_t nearest = distances.Between(nearX, nearY);
    if (!distances.IsReached(nearest)) continue;
    const std::size_t farthest =
        distances.Between(area.X.Farthest(planet.X), area.Y.Farthest(planet.Y));
    const auto owner = static_cast<std::size_t>(planet.Owner);
    bounds.AtMost[owner] += planet.Influence->AtMost(nearest);
    bounds.AtLeast[owner] += planet.Influence->AtLeast(farthest);
    reaching.push_back(planet);
  }
  // Sums are cut before they are compared, so their bounds are too.
  for (int& sum : bounds.AtMost) sum = std::min(sum, kLargestInfluence);
  for (int& sum : bounds.AtLeast) sum = std::min(sum, kLargestInfluence);
  return bounds;
}

void FindLeader(const SumBounds& bounds, int playerCount, Contest& contest) {
  for (int player = 1; player <= playerCount; ++player) {
    const int atLeast = bounds.AtLeast[static_cast<std::size_t>(player)];
    if (atLeast <= contest.LeastWinningSum) continue;
    contest.LeastWinningSum = atLeast;
    contest.Leader = player;
  }
}

// Equal sums go to the lower number: a player before the leader wins where he reaches the leader's
// sum, a player behind has to exceed it.
PlayerSet FindContenders(const SumBounds& bounds, int playerCount, const Contest& contest) {
  PlayerSet contenders;
  for (int player = 1; player <= playerCount; ++player) {
    const int needed = contest.LeastWinningSum + (player > contest.Leader ? 1 : 0);
    const auto number = static_cast<std::size_t>(player);
    contenders[number] = player == contest.Leader || bounds.AtMost[number] >= needed;
  }
  return contenders;
}

}  // namespace

Contest FindContest(std::span<const RadiatingPlanet> planets, const LightYearArea& area,
                    InfluenceDistances distances, int playerCount) {
  Contest contest;
  contest.Planets.reserve(planets.size());
  const SumBounds bounds = BoundSums(planets, area, distances, contest.Planets);
  FindLeader(bounds, playerCount, contest);
  // Where nobody leads, some points may be reached without a winner, and that counts, too.
  if (contest.Leader == 0) return contest;
  const PlayerSet contenders = FindContenders(bounds, playerCount, contest);
  std::erase_if(contest.Planets, [&](const RadiatingPlanet& planet) {
    return !contenders[static_cast<std::size_t>(planet.Owner)];
  });
  contest.IsOpen = contenders.count() > 1;
  return contest;
}

}  // namespace quorvane
