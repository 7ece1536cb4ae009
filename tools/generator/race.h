#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "generator/environment.h"
#include "generator/random.h"
#include "model/player_record.h"

namespace quorvane::generator {

/// The reach of a stargate: light years and kT, -1 unlimited.
struct Gate {
  int Range = 0;
  int Mass = 0;
};

/// A planetary scanner's normal and penetrating range in light years.
struct Scanner {
  int Range = 0;
  int PenetratingRange = 0;
};

/// One player of a generated game.
struct Race {
  std::string Name;  // UTF-8
  HabRanges Ranges;
  std::string_view PrimaryTrait;
  std::array<bool, kLesserTraitCount> LesserTraits = {};
  int GrowthPercent = 15;
  /// How fast the empire spreads, 100 being the average.
  int Vigour = 100;
  int TerraformSteps = 7;
  int ColonistsPerResource = 1000;
  int FactoryOutput = 10;  // resources a year from ten factories
  int MineOutput = 10;     // kT a year from ten mines
  std::array<Gate, 2> Gates;
  Scanner PlanetScanner;
  /// The race's own starbase design, beside the game's own names.
  std::string StarbaseDesign;

  /// Races of this trait live on their starbases: no mines, factories or defences.
  bool LivesOnStarbases() const { return PrimaryTrait == "AR"; }
  bool HasGates() const { return PrimaryTrait != "HE"; }
};

/// So many different races, at most 16.
std::vector<Race> MakeRaces(int count, Random& random);

}  // namespace quorvane::generator
