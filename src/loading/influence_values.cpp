#include "loading/influence_values.h"

#include <cassert>
#include <cmath>

#include "model/rounding.h"

namespace quorvane {
namespace {

// A share counts only up to where the sum is cut. As shares are never negative, a sum that loses
// something here is at the cut anyway; in return no number of planets makes 32 bits overflow.
std::int16_t CutShare(int share) {
  return static_cast<std::int16_t>(std::min(share, kLargestInfluence));
}

}  // namespace

InfluenceByDistance::InfluenceByDistance(int soiSetting, int radius) : soiSetting_(soiSetting) {
  const int outOfReach = soiSetting + kInfluenceFringe + 1;
  shares_.resize(static_cast<std::size_t>(outOfReach) + 1);
  TabulateSphere(radius);
  atMost_ = shares_;
  atLeast_ = shares_;
  TabulateFringe(radius);
  MakeBoundsFall();
}

void InfluenceByDistance::TabulateSphere(int radius) {
  for (int distance = 1; distance <= soiSetting_; ++distance) {
    shares_[static_cast<std::size_t>(distance)] = CutShare(soiSetting_ * radius / distance);
  }
}

void InfluenceByDistance::TabulateFringe(int radius) {
  const double setting = soiSetting_;
  fringe_.resize(kInfluenceFringe + 1);
  for (int beyond = 1; beyond <= kInfluenceFringe; ++beyond) {
    const double share = (-setting / kInfluenceFringe * beyond + (setting + 2)) / setting * radius;
    fringe_[static_cast<std::size_t>(beyond)] = share;
    // Rounding moves a sum by at most a half, and adding the share to a sum of 32 bits is off by
    // less than the rest. The two whole numbers within that are the same, except for exact halves.
    constexpr double kMostRounding = 0.5 + 1e-6;
    const int up = FloorToWhole32(share + kMostRounding);
    const int down = ToWhole32(std::ceil(share - kMostRounding));
    const auto distance = static_cast<std::size_t>(soiSetting_) + static_cast<std::size_t>(beyond);
    shares_[distance] = up == down ? CutShare(up) : kDependsOnSum;
    atMost_[distance] = CutShare(up);
    atLeast_[distance] = CutShare(down);
  }
}

// Shares fall with distance, except that with a setting below 50 the fringe begins higher than the
// sphere ends. The bounds have to fall in any case.
void InfluenceByDistance::MakeBoundsFall() {
  for (std::size_t distance = atMost_.size() - 1; distance > 1; --distance) {
    atMost_[distance - 1] = std::max(atMost_[distance - 1], atMost_[distance]);
  }
  for (std::size_t distance = 2; distance < atLeast_.size(); ++distance) {
    atLeast_[distance] = std::min(atLeast_[distance - 1], atLeast_[distance]);
  }
}

int InfluenceByDistance::AddHalf(int sum, std::size_t distance) const {
  return ToWhole32(fringe_[distance - static_cast<std::size_t>(soiSetting_)] + sum);
}

InfluenceTables::InfluenceTables(int soiSetting) : soiSetting_(soiSetting) {
  assert(soiSetting > 0);
  const int reach = soiSetting + kInfluenceFringe;
  // The root of a whole number rounds to d while the number is at most d² + d, just below (d + ½)²;
  // it is never an exact half.
  int distance = 1;
  for (int squared = 1; squared <= reach * reach; ++squared) {
    if (squared > distance * distance + distance) ++distance;
    distances_.push_back(static_cast<std::uint16_t>(distance));
  }
  distances_.push_back(static_cast<std::uint16_t>(reach + 1));
}

}  // namespace quorvane
