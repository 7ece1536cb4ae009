#pragma once

#include "generator/random.h"
#include "generator/universe.h"

namespace quorvane::generator {

/// Plays the history of the universe up to its year: every race gets a home world far from the
/// others, settles the planets around it, keeps off what lies too far, and late in the game takes a
/// few planets from its neighbours.
void PlayHistory(Universe& universe, Random& random);

}  // namespace quorvane::generator
