#pragma once

#include <string>

#include "model/race_colours.h"

namespace quorvane {

/// What one stored year tells of one race. A race of which nothing is known in a year has none.
struct RaceYear {
  int Year = 0;
  std::string Race;
  Colour RaceColour;
  double Planets = 0;
  double Population = 0;
  double Resources = 0;
  double Territory = 0;
  double Starbases = 0;
  double Minerals = 0;  // stored on the planets, in thousands of kT

  bool operator==(const RaceYear&) const = default;
};

}  // namespace quorvane
