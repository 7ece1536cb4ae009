#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "model/game_session.h"

namespace quorvane {

/// What planets are measured by in searches.
enum class PlanetMeasure : std::uint8_t {
  Population,
  Hab,    // value for the user's own race, percent
  Terra,  // value after terraforming, percent
  Age,    // of the report, years
  Resources,
  Mines,
  Factories,
  Defence,  // percent
  Sphere,   // of influence, light years
  Score,
  X,  // game coordinates
  Y,
  IronConcentration,
  BoraConcentration,
  GermConcentration,
  StoredIron,  // on the surface, kT
  StoredBora,
  StoredGerm,
  Gravity,
  Temperature,
  Radiation,
  GateRange,  // light years; `kUnlimitedGate`: unlimited
  GateMass,   // kT
  ScanRange,
  PenScanRange,
  CapacityUsed,     // percent
  NearestOwn,       // light years to the nearest planet of the user's own race
  FromTheSelected,  // light years to the selected planet
};

/// Every measure by the name that searches know it by, in the order above.
inline constexpr std::string_view kMeasureNames[] = {
    "pop", "hab",  "terra",    "age",  "res",  "mines", "fact",  "def",   "soi",  "score",
    "x",   "y",    "iron",     "bora", "germ", "siron", "sbora", "sgerm", "grav", "temp",
    "rad", "gate", "gatemass", "scan", "pen",  "cap",   "near",  "dist"};

/// The measure of a name, letter case aside; nothing for other names.
std::optional<PlanetMeasure> MeasureNamed(std::string_view name);

/// What the reports say of a planet by one measure; nothing where they do not say it. A planet that
/// nobody owns has no population where it was looked at, one that is owned and was only sighted has
/// an unknown one.
/// @param measure  not one of the last two, which the reports do not know
std::optional<double> MeasurePlanet(const GameSession& session, int planet, PlanetMeasure measure);

/// How well a race can live on a planet, in percent; nothing where its environment is not known.
std::optional<double> MeasureHab(const GameSession& session, int race, int planet);

}  // namespace quorvane
