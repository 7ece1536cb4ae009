#pragma once

#include <vector>

#include "model/game_session.h"

namespace quorvane::reference {

/// The distances that `DistancesToOwnPlanets` has to give, by looking at every pair of planets.
std::vector<double> PlainDistancesToOwnPlanets(const GameSession& session);

}  // namespace quorvane::reference
