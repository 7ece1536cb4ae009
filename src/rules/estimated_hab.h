#pragma once

#include <cstdint>

#include "model/game_session.h"

namespace quorvane {

/// Where a gravity lies on the game's gravity scale, whose steps are not even in g: 0.12 g gives
/// -1, 0.5 g 25, 1 g 50, 2 g 75, 8 g 100. A gravity of 0 or less lies below everything.
std::int16_t GravityToScale(double gravity);

/// How well a race can live on a planet, in percent.
/// Gravity is compared on the game's gravity scale, because its steps are not even in g.
/// @param race, planet  their numbers, from 1
/// @return 0 … 100 within the race's tolerance; -45 … -1, the steps by which the planet lies
///         outside it, all three readings together; -100 when its environment is not known
std::int32_t EstimatedHab(const GameSession& session, int race, int planet);

}  // namespace quorvane
