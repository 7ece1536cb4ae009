#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

namespace quorvane {

/// Beyond `SoiSetting` a planet's influence fades out over this many light years.
inline constexpr int kInfluenceFringe = 25;
/// Sums are compared in 16 bits: whatever is larger counts as this much.
inline constexpr int kLargestInfluence = 32767;
/// The strength of a sum of 100 and more.
inline constexpr std::int16_t kFullStrength = 100;

/// How the share of a planet, which is what it adds to its owner's sum, is found.
enum class ShareKind : std::int16_t {
  /// `ShareAt` gives every share.
  Simple,
  /// Shares in the fringe may be exact halves: what becomes of one depends on the sum before it.
  Halves,
  /// The rule's arithmetic misses some halves: where the fringe is near, it is followed literally.
  MissedHalves,
  /// Settings and radii that no load gives, too large for `ShareAt`: it is followed everywhere.
  Unusual,
};

ShareKind ShareKindOf(int soiSetting, int radius);

/// A planet that radiates influence, at its stored position, in numbers that need no conversion.
struct RadiatingPlanet {
  float X = 0;
  float Y = 0;
  float Radius = 0;
  std::int16_t Owner = 0;  // 1 … 16
  ShareKind Kind = ShareKind::Simple;
};

/// Planets that radiate, in map order: where exact halves meet, the order decides the rounding.
using InfluenceList = std::vector<RadiatingPlanet>;

/// The rule of influence for one `SoiSetting`, S.
struct InfluenceRule {
  explicit InfluenceRule(int soiSetting)
      : SoiSetting(soiSetting),
        Sphere(static_cast<float>(soiSetting)),
        Reach(Sphere + kInfluenceFringe),
        ReachSquared(Reach * Reach),
        FringeDivisor(kInfluenceFringe * Sphere) {}

  int SoiSetting;
  float Sphere;
  float Reach;
  float ReachSquared;
  float FringeDivisor;
};

/// A planet's part of the formulas: with r its radius, a share is S r / d in the sphere and
/// (`Fading` - S r (d - S)) / 25 S in the fringe, both without their fraction.
struct ShareTerms {
  float Strength;  // S r
  float Fading;    // 25 (S + 2) r, and 12.5 S to round to the nearest number
};

// The functions below are the innermost of the program's longest loops. They take the squared
// distance dx² + dy² + 1. All numbers but the root and the quotients are whole or halves and small
// enough for a float, and no rounded root or quotient reaches the next whole number: so the results
// are exact, whichever way a compiler arranges them. Without branches they are done for many points
// at once, and they have to become part of the loop for that.

[[gnu::always_inline]] inline ShareTerms TermsOf(InfluenceRule rule, RadiatingPlanet planet) {
  return {rule.Sphere * planet.Radius,
          kInfluenceFringe * (rule.Sphere + 2) * planet.Radius + rule.FringeDivisor / 2};
}

/// The terms for exact halves rounded down.
[[gnu::always_inline]] inline ShareTerms RoundedDown(ShareTerms terms) {
  return {terms.Strength, terms.Fading - 0.5F};
}

[[gnu::always_inline]] inline float WithoutFraction(float value) {
  return static_cast<float>(static_cast<int>(value));
}

/// d, the root rounded to a whole number; it is never near a half.
[[gnu::always_inline]] inline float DistanceOf(float squared) {
  return WithoutFraction(std::sqrt(squared) + 0.5F);
}

// A share counts only up to where the sum is cut. As shares are never negative, a sum that loses
// something here is at the cut anyway; in return no number of planets makes 32 bits overflow.
[[gnu::always_inline]] inline int CutShare(float share) {
  return static_cast<int>(share < kLargestInfluence ? share : kLargestInfluence);
}

/// The share at a point that lies in the sphere.
[[gnu::always_inline]] inline int ShareInSphere(ShareTerms terms, float squared) {
  return CutShare(terms.Strength / DistanceOf(squared));
}

/// The share at any point, 0 out of reach; exact halves are rounded up.
[[gnu::always_inline]] inline int ShareAt(InfluenceRule rule, ShareTerms terms, float squared) {
  const float distance = DistanceOf(squared);
  const bool isInSphere = distance <= rule.Sphere;
  const float fading = terms.Fading - terms.Strength * (distance - rule.Sphere);
  const float dividend = isInSphere ? terms.Strength : fading;
  const float divisor = isInSphere ? distance : rule.FringeDivisor;
  const int share = CutShare(dividend / divisor);
  return squared <= rule.ReachSquared ? share : 0;
}

/// The largest squared distance at which `ShareAt` gives at least this much.
/// @param share  at least 1
[[gnu::always_inline]] inline float FarthestSquared(InfluenceRule rule, ShareTerms terms,
                                                    int share) {
  const auto wanted = static_cast<float>(share);
  const bool isInSphere = wanted * rule.Sphere > terms.Strength;
  const float dividend = isInSphere ? terms.Strength : terms.Fading - rule.FringeDivisor * wanted;
  const float divisor = isInSphere ? wanted : terms.Strength;
  const float start = isInSphere ? 0 : rule.Sphere;
  const float distance = start + WithoutFraction(dividend / divisor);
  const float squared = distance * distance + distance;
  return squared < rule.ReachSquared ? squared : rule.ReachSquared;
}

/// 1 where the share was an exact half before `ShareAt` rounded it up, otherwise 0.
[[gnu::always_inline]] inline int HalfAt(InfluenceRule rule, ShareTerms terms, float squared) {
  const float distance = DistanceOf(squared);
  const float fading = terms.Fading - terms.Strength * (distance - rule.Sphere);
  const float quotient = WithoutFraction(fading / rule.FringeDivisor);
  const int isWhole = quotient * rule.FringeDivisor == fading ? 1 : 0;
  const int isBehindSphere = distance > rule.Sphere ? 1 : 0;
  const int isReached = squared <= rule.ReachSquared ? 1 : 0;
  return isWhole & isBehindSphere & isReached;
}

/// A sum with a planet's share added in the very steps of the rule: in the fringe the sum is part
/// of what is rounded, halves to even.
int AddShareLiterally(int sum, const InfluenceRule& rule, const RadiatingPlanet& planet,
                      double squared);

}  // namespace quorvane
