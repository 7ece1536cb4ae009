#include "influence/influence_bounds.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quorvane {
namespace {

constexpr float kTileTolerance = 3;  // light years
constexpr std::size_t kRows = kMaxPlayers + 1;

std::size_t WholeBlocks(std::size_t tiles) {
  return (tiles + kTileBlock - 1) / kTileBlock * kTileBlock;
}

}  // namespace

InfluenceStrip::InfluenceStrip(const InfluenceRule& rule, const InfluenceLoops& loops,
                               const std::vector<LightYears>& tileRows, int playerCount)
    : rule_(rule),
      loops_(loops),
      playerCount_(playerCount),
      lastTile_(static_cast<int>(tileRows.size()) - 1),
      tileCount_(WholeBlocks(tileRows.size())),
      first_(tileCount_),
      last_(tileCount_),
      atLeast_(kRows * tileCount_),
      atMost_(kRows * tileCount_),
      leaders_(tileCount_),
      leastWinningSums_(tileCount_),
      contenders_(tileCount_) {
  std::ranges::transform(tileRows, first_.begin(), &LightYears::First);
  std::ranges::transform(tileRows, last_.begin(), &LightYears::Last);
  tilesPerLightYear_ = static_cast<float>(lastTile_) / std::max(tileRows.back().First, 1.0F);
}

void InfluenceStrip::GoTo(LightYears columns, std::span<const RadiatingPlanet> planets) {
  FindNearPlanets(columns, planets);
  std::ranges::fill(atLeast_, 0);
  std::ranges::fill(atMost_, 0);
  loops_.BoundStrip(rule_, nearPlanets_,
                    {.TileCount = tileCount_,
                     .First = first_.data(),
                     .Last = last_.data(),
                     .AtLeast = atLeast_.data(),
                     .AtMost = atMost_.data()});
  FindLeaders();
  FindContenders();
}

// The tile where a light year lies. Grid lines lie at whole light years, so that tiles are not
// quite as long as each other, and the answer may be one of up to two light years away.
int InfluenceStrip::TileAt(float y) const {
  return static_cast<int>(std::clamp(y * tilesPerLightYear_, 0.0F, static_cast<float>(lastTile_)));
}

void InfluenceStrip::FindNearPlanets(LightYears columns, std::span<const RadiatingPlanet> planets) {
  // Written in any case, here and below: to be without a branch is quicker.
  nearNumbers_.resize(planets.size());
  std::size_t count = 0;
  for (std::size_t i = 0; i < planets.size(); ++i) {
    nearNumbers_[count] = i;
    count += columns.Nearest(planets[i].X) <= rule_.Reach ? 1 : 0;
  }
  nearPlanets_.resize(count);
  for (std::size_t i = 0; i < count; ++i) {
    const RadiatingPlanet& planet = planets[nearNumbers_[i]];
    const float nearestX = columns.Nearest(planet.X);
    const float reachY = std::sqrt(rule_.ReachSquared - nearestX * nearestX) + kTileTolerance;
    nearPlanets_[i] = {.Planet = planet,
                       .FirstTile = TileAt(planet.Y - reachY),
                       .LastTile = TileAt(planet.Y + reachY),
                       .NearestX = nearestX,
                       .FarthestX = columns.Farthest(planet.X)};
  }
}

Contest InfluenceStrip::ContestFor(int tile) const {
  const auto index = static_cast<std::size_t>(tile);
  return {leaders_[index], leastWinningSums_[index],
          static_cast<std::uint32_t>(contenders_[index])};
}

std::span<const RadiatingPlanet> InfluenceStrip::PlanetsFor(int tile, const Contest& contest) {
  const std::uint32_t owners = contest.OwnersThatMatter();
  planetsForTile_.resize(nearPlanets_.size());
  std::size_t count = 0;
  for (const PlanetInReach& planet : nearPlanets_) {
    planetsForTile_[count] = planet.Planet;
    const bool isNear = (planet.FirstTile <= tile) & (tile <= planet.LastTile);
    count += isNear & (owners >> planet.Planet.Owner & 1U);
  }
  return {planetsForTile_.data(), count};
}

// A player's bounds in all tiles. Sums are cut before they are compared, so bounds are cut, too.
const int* InfluenceStrip::CutRow(std::vector<int>& sums, int player) const {
  int* const row = sums.data() + static_cast<std::size_t>(player) * tileCount_;
  for (std::size_t tile = 0; tile < tileCount_; ++tile) {
    row[tile] = row[tile] < kLargestInfluence ? row[tile] : kLargestInfluence;
  }
  return row;
}

void InfluenceStrip::FindLeaders() {
  std::ranges::fill(leaders_, 0);
  std::ranges::fill(leastWinningSums_, 0);
  int* const leaders = leaders_.data();
  int* const largest = leastWinningSums_.data();
  for (int player = 1; player <= playerCount_; ++player) {
    const int* const atLeast = CutRow(atLeast_, player);
    for (std::size_t tile = 0; tile < tileCount_; ++tile) {
      const bool isLarger = atLeast[tile] > largest[tile];
      leaders[tile] = isLarger ? player : leaders[tile];
      largest[tile] = isLarger ? atLeast[tile] : largest[tile];
    }
  }
}

// Equal sums go to the lower number: a player before the leader wins where he reaches the leader's
// sum, a player behind has to exceed it.
void InfluenceStrip::FindContenders() {
  std::ranges::fill(contenders_, 0);
  int* const contenders = contenders_.data();
  const int* const leaders = leaders_.data();
  const int* const leastWinningSums = leastWinningSums_.data();
  for (int player = 1; player <= playerCount_; ++player) {
    const int* const atMost = CutRow(atMost_, player);
    for (std::size_t tile = 0; tile < tileCount_; ++tile) {
      const int needed = leastWinningSums[tile] + (player > leaders[tile] ? 1 : 0);
      const int isLeader = player == leaders[tile] ? 1 : 0;
      const int mayWin = atMost[tile] >= needed ? 1 : 0;
      contenders[tile] |= (isLeader | mayWin) << player;
    }
  }
}

}  // namespace quorvane
