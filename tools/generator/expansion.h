#pragma once

#include "generator/random.h"
#include "generator/universe.h"

namespace quorvane::generator {

/// How a history goes.
struct Course {
  int SettledPercent = 66;  // of all planets, once the empires have had their fifty years
  int YearsAhead = 0;       // how many years beyond the universe's own are played
};

/// Plays the history of the universe up to its year: every race gets a home world far from the
/// others, settles the planets around it, keeps off what lies too far, and late in the game takes a
/// few planets from its neighbours. In the years ahead the empires go on settling what is left, and
/// now and then a planet changes hands or is given up.
void PlayHistory(Universe& universe, Random& random, const Course& course = {});

}  // namespace quorvane::generator
