#pragma once

#include <string>
#include <vector>

#include "generator/universe.h"

namespace quorvane::generator {

// The program's own files as a player would have saved them after some evenings with the game.

/// The years file: the year of every report, empty for the slots that have none.
std::string YearsText(const std::vector<int>& reportYears);

/// The remembered-race file: the user's own report slot, from 1.
std::string RememberedRaceText(int ownSlot);

/// The race colour file: one colour for every race, all of them readable on black.
std::string RaceColoursText(const Universe& universe);

/// The empire data file: ranges, traits and a note on every race.
std::string EmpireDataText(const Universe& universe, int ownRace);

/// The drawing file: home worlds, the own gates' lines and the fronts.
std::string DrawingText(const Universe& universe, int ownRace);

}  // namespace quorvane::generator
