#pragma once

#include <array>
#include <vector>

#include "model/planet_record.h"
#include "model/race_colours.h"

namespace quorvane {

/// One slice of a pie, counter-clockwise from its start; angles in radians from 3 o'clock.
struct PieSlice {
  double Start = 0;
  double End = 0;
  Colour SliceColour;

  bool operator==(const PieSlice&) const = default;
};

/// The three minerals of a planet as a pie and as bars.
struct MineralChart {
  /// Ironium, boranium and germanium; none for a planet without minerals.
  std::vector<PieSlice> Slices;
  /// Of the three bars, in twips; all but nothing for a planet without minerals.
  std::array<double, 3> BarHeights = {};
};

/// The tallest bar, in twips.
inline constexpr double kTallestBar = 1600;

/// How a planet's mineral concentrations compare; 100 gives the tallest bar.
MineralChart ConcentrationChart(const PlanetRecord& planet);

/// How the minerals stored on a planet compare; 10000 kT give the tallest bar.
MineralChart StoredChart(const PlanetRecord& planet);

}  // namespace quorvane
