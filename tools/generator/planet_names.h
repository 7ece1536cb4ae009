#pragma once

#include <string>
#include <vector>

#include "generator/random.h"

namespace quorvane::generator {

/// So many different planet names of at most 18 ASCII characters, in random order. As in the game
/// some carry an apostrophe or a hyphen and some look like numbers.
std::vector<std::string> MakePlanetNames(int count, Random& random);

}  // namespace quorvane::generator
