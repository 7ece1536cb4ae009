#pragma once

#include "model/race_colours.h"

namespace quorvane {

// The colours of the map that do not belong to a race.
inline constexpr Colour kBlack = {0, 0, 0};
inline constexpr Colour kWhite = {255, 255, 255};
inline constexpr Colour kRed = {255, 0, 0};
inline constexpr Colour kGreen = {0, 255, 0};
inline constexpr Colour kBlue = {0, 0, 255};
inline constexpr Colour kMagenta = {255, 0, 255};
inline constexpr Colour kYellow = {255, 255, 0};

// The colours of the three minerals, on the map and in the charts.
inline constexpr Colour kIroniumColour = kBlue;
inline constexpr Colour kBoraniumColour = kGreen;
inline constexpr Colour kGermaniumColour = kYellow;

}  // namespace quorvane
