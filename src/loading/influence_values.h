#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

namespace quorvane {

/// Beyond `SoiSetting` a planet's influence fades out over this many light years.
inline constexpr int kInfluenceFringe = 25;
/// Sums are compared in 16 bits: whatever is larger counts as this much.
inline constexpr int kLargestInfluence = 32767;
/// The strength of a sum of 100 and more.
inline constexpr std::int16_t kFullStrength = 100;

/// Distances in whole light years, from a table of their squares that `InfluenceTables` owns. It is
/// passed by value: loops that work on a copy of their own are quicker.
class InfluenceDistances {
 public:
  /// @param table  a distance for each dx² + dy² from 0 to the first one out of reach
  InfluenceDistances(const std::uint16_t* table, int reach)
      : table_(table), reach_(reach), outOfReach_(reach * reach) {}

  int Reach() const { return reach_; }
  /// The root of dx² + dy² + 1, rounded: at least 1; `Reach()` + 1 for all that is out of reach.
  /// @param dx, dy  in light years; one of them may be as large as the universe
  std::size_t Between(int dx, int dy) const {
    return table_[std::min(dx * dx + dy * dy, outOfReach_)];
  }
  bool IsReached(std::size_t distance) const {
    return distance <= static_cast<std::size_t>(reach_);
  }

 private:
  const std::uint16_t* table_;
  int reach_;
  int outOfReach_;  // the smallest dx² + dy² out of reach
};

/// What a planet of one radius adds to its owner's sum, by the distance that `InfluenceDistances`
/// gives. Never negative; nothing out of reach.
class InfluenceByDistance {
 public:
  InfluenceByDistance(int soiSetting, int radius);

  /// The sum with the planet's share added. In the fringe it is the new sum that is rounded, so
  /// what becomes of an exact half depends on the sum before it.
  int AddTo(int sum, std::size_t distance) const {
    const int share = shares_[distance];
    return share != kDependsOnSum ? sum + share : AddHalf(sum, distance);
  }
  /// No share at this distance or farther is larger.
  int AtMost(std::size_t distance) const { return atMost_[distance]; }
  /// No share at this distance or nearer is smaller.
  int AtLeast(std::size_t distance) const { return atLeast_[distance]; }

 private:
  static constexpr std::int16_t kDependsOnSum = -1;

  void TabulateSphere(int radius);
  void TabulateFringe(int radius);
  void MakeBoundsFall();
  int AddHalf(int sum, std::size_t distance) const;

  int soiSetting_;
  std::vector<std::int16_t> shares_;
  std::vector<std::int16_t> atMost_;
  std::vector<std::int16_t> atLeast_;
  std::vector<double> fringe_;  // before rounding, by the light years beyond `SoiSetting`
};

/// The distances and the tables of all radii in a game.
class InfluenceTables {
 public:
  explicit InfluenceTables(int soiSetting);

  InfluenceDistances Distances() const {
    return {distances_.data(), soiSetting_ + kInfluenceFringe};
  }
  /// The table of a radius; it stays where it is while others are added.
  const InfluenceByDistance& OfRadius(int radius) {
    return byRadius_.try_emplace(radius, soiSetting_, radius).first->second;
  }

 private:
  int soiSetting_;
  std::vector<std::uint16_t> distances_;
  std::map<int, InfluenceByDistance> byRadius_;
};

}  // namespace quorvane
