#pragma once

#include <cstddef>
#include <vector>

#include "model/game_session.h"
#include "model/planet_record.h"
#include "rules/stargates.h"

namespace quorvane {

/// The warp speeds that ways are told for; slower ones serve nobody who plans a way.
inline constexpr int kSlowestWarp = 4;
inline constexpr int kFastestWarp = 10;
inline constexpr std::size_t kWarpCount = kFastestWarp - kSlowestWarp + 1;

/// The way between two places in stored coordinates, as a fleet flies it.
double LightYearsBetween(double fromX, double fromY, double toX, double toY);
double LightYearsBetween(const PlanetRecord& from, const PlanetRecord& to);

/// How many years a fleet is on its way: at warp w it flies w * w light years a year, and a year
/// that it needs only a part of counts whole. 81 light years take 1 year at warp 9, any more 2.
/// @param warp from 1
int YearsAtWarp(double lightYears, int warp);

/// What becomes of ships that a stargate sends.
struct GateWay {
  GateReach Reach = GateReach::None;
  /// The distance in ranges of the sending gate; 0 where it sends nothing.
  double Ranges = 0;
};

/// The way through the stargates of two planets: both need one, and the sender's range decides.
GateWay GateWayBetween(const PlanetRecord& from, const PlanetRecord& to);

/// A planet and how far away it is.
struct NearPlanet {
  int Number = 0;
  double LightYears = 0;
};

/// How many planets a list of the nearest ones has at most.
inline constexpr std::size_t kNearestPlanets = 10;

/// The planets of the user's own race that are nearest to a planet, the nearest first and of
/// equally near ones the lower number. The planet itself is none of them, and a planet that the
/// game does not have is near to nothing.
std::vector<NearPlanet> NearestOwnPlanets(const GameSession& session, int planet);
/// The same of planets with stargates, whoever owns them.
std::vector<NearPlanet> NearestStargates(const GameSession& session, int planet);

/// How far it is from each planet, by its number, to the nearest of the user's own race: 0 from one
/// of these. Empty where the user owns none.
std::vector<double> DistancesToOwnPlanets(const GameSession& session);

}  // namespace quorvane
