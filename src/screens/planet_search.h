#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/game_session.h"

namespace quorvane {

/// All planets in map order, each by its name and, where it has one, its owner in parentheses.
std::vector<std::string> PlanetEntries(const GameSession& session);

/// The first planet of exactly that name, or 0.
int FindPlanetNamed(const GameSession& session, std::string_view name);

}  // namespace quorvane
