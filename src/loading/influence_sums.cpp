#include "loading/influence_sums.h"

#include <algorithm>
#include <cstddef>

namespace quorvane {

void InfluenceSums::SumPlanets(std::span<const RadiatingPlanet> planets, const TilePlaces& places) {
  atLeast_.resize(planets.size());
  atMost_.resize(planets.size());
  loops_.BoundShares(rule_, planets, places, atLeast_.data(), atMost_.data());
  loops_.SumShares(rule_, planets, places, atLeast_.data(), atMost_.data(), sums_);
}

void InfluenceSums::CompareSums(const Contest& contest) {
  TileNumbers holders;
  TileNumbers largest;
  for (int player = 1; player <= playerCount_; ++player) {
    if (!contest.MayHold(player)) continue;
    const TileNumbers& sums = sums_[static_cast<std::size_t>(player)];
    for (std::size_t i = 0; i < kTilePoints; ++i) {
      const int sum = std::min(sums.At[i], kLargestInfluence);
      const bool isLarger = sum > largest.At[i];
      holders.At[i] = isLarger ? player : holders.At[i];
      largest.At[i] = isLarger ? sum : largest.At[i];
    }
  }
  for (std::size_t i = 0; i < kTilePoints; ++i) {
    const int strength = std::min<int>(largest.At[i], kFullStrength);
    holders_.Points[i] = {static_cast<std::int16_t>(holders.At[i]),
                          static_cast<std::int16_t>(strength)};
  }
}

const TileHolders& InfluenceSums::Holders(std::span<const RadiatingPlanet> planets,
                                          const TilePlaces& places, const Contest& contest) {
  for (int player = 1; player <= kMaxPlayers; ++player) {
    if (contest.MayHold(player)) sums_[static_cast<std::size_t>(player)] = {};
  }
  SumPlanets(planets, places);
  CompareSums(contest);
  holders_.IsReached = {};
  // Somebody holds every point of a tile that has a leader.
  if (contest.Leader == 0) loops_.MarkReached(rule_, planets, places, holders_.IsReached);
  return holders_;
}

}  // namespace quorvane
