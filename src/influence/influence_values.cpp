#include "influence/influence_values.h"

#include <algorithm>

#include "model/game_choice.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

// Whole numbers and halves up to here are exact in a float.
constexpr double kLargestExactHalf = 1 << 23;

// In the order of the rule, exact or not: S = 100, 8 light years beyond it and radius 45 ought to
// give 31.5, but give a hair less, and 31 when rounded.
double FringeShare(double setting, int beyond, double radius) {
  return (-setting / kInfluenceFringe * beyond + (setting + 2)) / setting * radius;
}

}  // namespace

ShareKind ShareKindOf(int soiSetting, int radius) {
  // Below the smallest setting the fringe begins higher than the sphere ends, and no bound holds.
  if (soiSetting < kSmallestSoiSetting || soiSetting > kLargestSoiSetting ||
      kInfluenceFringe * (soiSetting + 2.5) * radius >= kLargestExactHalf) {
    return ShareKind::Unusual;
  }
  ShareKind kind = ShareKind::Simple;
  const int divisor = kInfluenceFringe * soiSetting;
  for (int beyond = 1; beyond <= kInfluenceFringe; ++beyond) {
    const int dividend = (kInfluenceFringe * (soiSetting + 2) - soiSetting * beyond) * radius;
    // Whether the remainder is half the divisor.
    if (2 * (dividend % divisor) != divisor) continue;
    const double share = FringeShare(soiSetting, beyond, radius);
    if (share - std::floor(share) != 0.5) return ShareKind::MissedHalves;
    kind = ShareKind::Halves;
  }
  return kind;
}

int AddShareLiterally(int sum, const InfluenceRule& rule, const RadiatingPlanet& planet,
                      double squared) {
  const double reach = rule.SoiSetting + kInfluenceFringe;
  if (squared > reach * reach) return sum;
  const int distance = ToWhole32(std::sqrt(squared));
  const double radius = planet.Radius;
  if (distance <= rule.SoiSetting) {
    // Multiplied first: 75 * 13 / 65 is 15, 75 / 65 * 13 a little less.
    const double share = std::floor(rule.SoiSetting * radius / distance);
    return sum + FloorToWhole32(std::min<double>(share, kLargestInfluence));
  }
  const double share = FringeShare(rule.SoiSetting, distance - rule.SoiSetting, radius);
  return ToWhole32(std::min<double>(share, kLargestInfluence) + sum);
}

}  // namespace quorvane
