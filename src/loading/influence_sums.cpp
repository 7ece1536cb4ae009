#include "loading/influence_sums.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace quorvane {

void InfluenceSums::SumPlanets(std::span<const RadiatingPlanet> planets,
                               std::span<const InfluencePlace> places) {
  const InfluenceDistances distances = distances_;
  for (std::vector<int>& sums : sums_) sums.clear();
  for (const RadiatingPlanet& planet : planets) {
    std::vector<int>& ownerSums = sums_[static_cast<std::size_t>(planet.Owner)];
    ownerSums.resize(places.size());
    const std::span<int> sums = ownerSums;
    for (std::size_t i = 0; i < places.size(); ++i) {
      const std::size_t distance =
          distances.Between(planet.X - places[i].X, planet.Y - places[i].Y);
      sums[i] = planet.Influence->AddTo(sums[i], distance);
    }
  }
}

// While players are compared, a point's strength is its largest sum so far, cut to its 16 bits.
void InfluenceSums::ComparePlayer(int player) {
  const std::vector<int>& sums = sums_[static_cast<std::size_t>(player)];
  for (std::size_t i = 0; i < sums.size(); ++i) {
    const auto sum = static_cast<std::int16_t>(std::min(sums[i], kLargestInfluence));
    const bool isLarger = sum > points_[i].Strength;
    points_[i].Holder = isLarger ? static_cast<std::int16_t>(player) : points_[i].Holder;
    points_[i].Strength = std::max(points_[i].Strength, sum);
  }
}

std::span<const InfluencePoint> InfluenceSums::Holders(std::span<const RadiatingPlanet> planets,
                                                       std::span<const InfluencePlace> places) {
  SumPlanets(planets, places);
  points_.assign(places.size(), {});
  for (int player = 1; player <= playerCount_; ++player) ComparePlayer(player);
  for (InfluencePoint& point : points_) {
    point.Strength = std::min(point.Strength, kFullStrength);
  }
  return points_;
}

}  // namespace quorvane
