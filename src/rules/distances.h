#pragma once

#include <string>
#include <vector>

#include "model/game_session.h"

namespace quorvane {

/// How far two places lie apart, in light years. Both are stored coordinates.
double LightYearsBetween(double x, double y, double otherX, double otherY);
double LightYearsBetween(const PlanetRecord& planet, const PlanetRecord& other);

/// How many years a fleet flies: at warp w it comes w * w light years far in a year, and a part of
/// a year counts as a whole one.
/// @param warp 1 … 10
int YearsAtWarp(double lightYears, int warp);

/// What happens to ships that a planet's stargate sends to another planet, which has to have one as
/// well: "safe", "damage, 2.3 x range" or "no".
std::string GateWayText(const PlanetRecord& from, const PlanetRecord& to);

/// The planets nearest to one, itself left out, the nearest first and by number where several lie
/// equally far.
/// @param planet  its number, from 1
/// @param most    how many, if there are so many
/// @return their numbers
std::vector<int> NearestOwnPlanets(const GameSession& session, int planet, std::size_t most);
/// The same among the planets with a stargate, whoever owns them.
std::vector<int> NearestStargates(const GameSession& session, int planet, std::size_t most);

}  // namespace quorvane
