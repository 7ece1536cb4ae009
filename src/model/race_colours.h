#pragma once

#include <array>
#include <cstddef>

namespace quorvane {

/// A 24-bit colour of three components 0 … 255.
struct Colour {
  int Red = 0;
  int Green = 0;
  int Blue = 0;

  bool operator==(const Colour&) const = default;
};

inline constexpr std::size_t kColourSlots = 16;

/// The colours that players are drawn in. A player's `ColourSlot` n means entry n - 1.
using RaceColourTable = std::array<Colour, kColourSlots>;

/// What every load starts with.
inline constexpr RaceColourTable kDefaultRaceColours = {{
    {255, 0, 0},
    {0, 255, 0},
    {0, 0, 255},
    {255, 255, 0},
    {255, 0, 255},
    {0, 255, 255},
    {200, 200, 255},
    {255, 128, 0},
    {255, 0, 128},
    {0, 255, 128},
    {128, 255, 0},
    {0, 128, 255},
    {128, 0, 255},
    {255, 64, 0},
    {0, 255, 64},
    {64, 0, 255},
}};

}  // namespace quorvane
