#pragma once

#include "model/planet_record.h"

namespace quorvane {

/// What a planet is worth to a growing empire, not rounded: its mineral concentrations, of which
/// germanium, which factories need, counts most, times its value for the user's own race.
double ExpansionValue(const PlanetRecord& planet);

/// The planet's score: up to 6 for population, 3 for a starbase (or for not knowing), and a
/// thirtieth of its resources, known or guessed from the population.
int PlanetScore(const PlanetRecord& planet);

}  // namespace quorvane
