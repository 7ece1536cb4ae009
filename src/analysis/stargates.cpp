#include "analysis/stargates.h"

#include <cmath>

#include "model/rounding.h"
#include "model/text.h"

namespace quorvane {
namespace {

std::string LimitText(const FieldValue& limit) {
  return limit.ReadsAs(kUnlimitedGate) ? "Inf" : std::string(Trimmed(FieldText(limit)));
}

}  // namespace

std::int32_t GateDistance(const PlanetRecord& from, const PlanetRecord& to) {
  const double x = from.X() - to.X();
  const double y = from.Y() - to.Y();
  return ToWhole32(std::sqrt(y * y + x * x));
}

GateReach ReachOf(std::int32_t range, std::int32_t distance) {
  constexpr std::int64_t kDangerousRanges = 5;
  if (distance <= range) return GateReach::Safe;
  return distance <= kDangerousRanges * range ? GateReach::Dangerous : GateReach::None;
}

std::int32_t GateRangeOf(const PlanetRecord& planet) {
  return ToWhole32(planet[PlanetField::GateRange].Number());
}

std::string GateLimitsText(const PlanetRecord& planet) {
  return LimitText(planet[PlanetField::GateMass]) + " Kt / " +
         LimitText(planet[PlanetField::GateRange]) + " l.y.";
}

}  // namespace quorvane
