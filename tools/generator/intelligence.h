#pragma once

#include <vector>

#include "generator/random.h"
#include "generator/universe.h"

namespace quorvane::generator {

enum class Insight {
  Own,      // the author's own planet: everything
  Scanned,  // environment, minerals and inhabitants
  Sighted   // somebody lives there, that is all
};

/// One planet that a report knows of.
struct Sighting {
  std::size_t Planet = 0;  // index into the universe's planets
  int Age = 0;             // years before the report
  Insight Depth = Insight::Scanned;
};

/// What a player knows of the universe in a year, in map order. Scanners show what lies near its
/// planets; scouts have brought home older news from further off, and nothing from the far side.
std::vector<Sighting> KnowledgeOf(const Universe& universe, int author, int year, Random& random);

}  // namespace quorvane::generator
