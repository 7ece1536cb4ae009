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

void InfluenceSums::CompareSums(std::uint32_t players) {
  TileNumbers largest;
  TileNumbers holders;
  loops_.FindLargest(sums_, players, largest, holders);
  for (std::size_t i = 0; i < kTilePoints; ++i) {
    const int strength = largest.At[i] < kFullStrength ? largest.At[i] : kFullStrength;
    holders_.Points[i] = {static_cast<std::int16_t>(holders.At[i]),
                          static_cast<std::int16_t>(strength)};
  }
}

const TileHolders& InfluenceSums::Holders(std::span<const RadiatingPlanet> planets,
                                          const TilePlaces& places, const Contest& contest) {
  for (std::size_t player = 1; player <= kMaxPlayers; ++player) {
    if ((contest.OwnersThatMatter() >> player & 1U) != 0) sums_[player] = {};
  }
  SumPlanets(planets, places);
  CompareSums(contest.Contenders);
  // Somebody holds every point of a tile that has a leader.
  if (contest.Leader == 0) {
    holders_.IsReached = {};
    loops_.MarkReached(rule_, planets, places, holders_.IsReached);
  }
  return holders_;
}

}  // namespace quorvane
