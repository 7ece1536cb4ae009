#pragma once

#include <cstdint>
#include <string>

#include "model/planet_record.h"

namespace quorvane {

/// The distance between two planets in whole light years, as stargates count it.
std::int32_t GateDistance(const PlanetRecord& from, const PlanetRecord& to);

/// How a stargate's range covers a distance.
enum class GateReach {
  Safe,       // ships arrive unharmed
  Dangerous,  // up to five times the range ships may arrive, with losses
  None,
};
GateReach ReachOf(std::int32_t range, std::int32_t distance);

/// The range of a planet's stargate in whole light years; 0 or less: it has none.
std::int32_t GateRangeOf(const PlanetRecord& planet);

/// What a planet's stargate can do, mass before range: "300 Kt / Inf l.y.".
std::string GateLimitsText(const PlanetRecord& planet);

}  // namespace quorvane
