#pragma once

#include "generator/random.h"
#include "generator/universe.h"

namespace quorvane::generator {

/// How a history goes.
struct Course {
  int SettledPercent = 66;  // of all planets, once the empires have had their fifty years
  int YearsAhead = 0;       // how many years beyond the universe's own are played
  /// Whether those are years of war, and which race is sure to live through it.
  bool IsWar = false;
  int Survivor = 0;
};

/// Plays the history of the universe up to its year: every race gets a home world far from the
/// others, settles the planets around it, keeps off what lies too far, and late in the game takes a
/// few planets from its neighbours. In the years ahead the empires go on settling what is left, and
/// now and then a planet changes hands or is given up. In a war fronts move every year, and one
/// race after the other loses all its planets.
void PlayHistory(Universe& universe, Random& random, const Course& course = {});

}  // namespace quorvane::generator
