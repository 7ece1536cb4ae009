#include "influence/influence_sums.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace quorvane {
namespace {

// For fewer planets it costs more to sort out their shares than to compute them point by point.
constexpr std::size_t kCrowd = 24;

}  // namespace

void InfluenceSums::BoundShares(std::span<const RadiatingPlanet> planets,
                                const TilePlaces& places) {
  atLeast_.resize(planets.size());
  atMost_.resize(planets.size());
  firstStep_.resize(planets.size());
  secondStep_.resize(planets.size());
  loops_.BoundShares(rule_, planets, places,
                     {atLeast_.data(), atMost_.data(), firstStep_.data(), secondStep_.data()});
}

// The owners of planets whose shares are, or may be, exact halves: what becomes of a half depends
// on the sum before it, so that nothing may be added to that sum out of turn.
std::uint32_t InfluenceSums::OwnersInOrder(std::span<const RadiatingPlanet> planets) const {
  std::uint32_t owners = 0;
  for (std::size_t i = 0; i < planets.size(); ++i) {
    const RadiatingPlanet& planet = planets[i];
    if (planet.Kind == ShareKind::Simple) continue;
    const bool hasFringe = static_cast<float>(atLeast_[i]) < planet.Radius;
    const bool mayHaveHalves = hasFringe && atLeast_[i] != atMost_[i];
    if (mayHaveHalves || planet.Kind == ShareKind::Unusual) owners |= 1U << planet.Owner;
  }
  return owners;
}

// Shares of small or distant planets are the same all over a tile, or fall by one or two at circles
// around the planet; neither needs a root or a division.
void InfluenceSums::SortOut(std::span<const RadiatingPlanet> planets) {
  const std::uint32_t ownersInOrder = OwnersInOrder(planets);
  steps_.resize(2 * planets.size() + 2);
  others_.resize(planets.size() + 1);
  std::size_t stepCount = 0;
  std::size_t otherCount = 0;
  for (std::size_t i = 0; i < planets.size(); ++i) {
    const RadiatingPlanet& planet = planets[i];
    const int steps = atMost_[i] - atLeast_[i];
    const bool isSimple = (steps <= 2) & ((ownersInOrder >> planet.Owner & 1U) == 0);
    constants_[static_cast<std::size_t>(planet.Owner)] += isSimple ? atLeast_[i] : 0;
    // Written in any case: to be without branches is quicker.
    steps_[stepCount] = {planet.X, planet.Y, firstStep_[i], planet.Owner};
    stepCount += isSimple & (steps >= 1);
    steps_[stepCount] = {planet.X, planet.Y, secondStep_[i], planet.Owner};
    stepCount += isSimple & (steps == 2);
    others_[otherCount] = planet;
    otherCount += !isSimple;
  }
  steps_.resize(stepCount);
  others_.resize(otherCount);
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
  std::span<const RadiatingPlanet> others = planets;
  constants_ = {};
  steps_.clear();
  if (planets.size() >= kCrowd) {
    BoundShares(planets, places);
    SortOut(planets);
    others = others_;
  }
  for (std::size_t player = 1; player <= kMaxPlayers; ++player) {
    if ((contest.OwnersThatMatter() >> player & 1U) == 0) continue;
    sums_[player].At.fill(constants_[player]);
  }
  loops_.SumSteps(steps_, places, sums_);
  loops_.SumShares(rule_, others, places, sums_);
  CompareSums(contest.Contenders);
  // Somebody holds every point of a tile that has a leader.
  if (contest.Leader == 0) {
    holders_.IsReached = {};
    loops_.MarkReached(rule_, planets, places, holders_.IsReached);
  }
  return holders_;
}

}  // namespace quorvane
