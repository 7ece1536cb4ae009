#pragma once

#include <string>

#include "generator/random.h"

namespace quorvane::generator {

/// A report with odd content in so many of a hundred lines: what players' tools, other versions of
/// the game and broken disks make of one.
std::string DamagedReport(const std::string& report, int percent, Random& random);

/// A map with names that come twice, stand between blanks or stand in for an empty field.
std::string WithOddNames(const std::string& map, Random& random);

}  // namespace quorvane::generator
