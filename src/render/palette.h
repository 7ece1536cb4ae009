#pragma once

#include "model/race_colours.h"

namespace quorvane {

// The colours of the map that do not belong to a race.
inline constexpr Colour kBlack = {0, 0, 0};
inline constexpr Colour kWhite = {255, 255, 255};
inline constexpr Colour kYellow = {255, 255, 0};

}  // namespace quorvane
