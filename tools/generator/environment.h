#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace quorvane::generator {

/// Gravity, temperature and radiation, in this order.
inline constexpr std::size_t kEnvironmentKinds = 3;

/// A planet's three readings as positions 0 … 100 on the game's scales, on which one step costs a
/// race the same everywhere. Temperature has 4 degrees to a step; the steps of gravity are not even
/// in g; radiation is its own scale.
using Environment = std::array<int, kEnvironmentKinds>;

/// What a race tolerates of one kind, in positions.
struct HabRange {
  int Low = 0;
  int High = 100;
  bool IsImmune = false;

  int Centre() const { return (Low + High) / 2; }
  bool Includes(int position) const { return IsImmune || (position >= Low && position <= High); }
};

using HabRanges = std::array<HabRange, kEnvironmentKinds>;

/// What a planet is worth to a race: 0 … 100 percent within its ranges, -45 … -1 outside.
int HabValue(const HabRanges& ranges, const Environment& environment);

/// The environment after each kind was moved towards the race's best by up to so many steps.
Environment Terraformed(const HabRanges& ranges, Environment environment, int steps);

/// Gravity in hundredths of g and temperature in degrees at a position.
int HundredthsOfG(int position);
int Degrees(int position);

/// The three readings as a report writes them: "1.12g", "-92ºC", "47mR".
std::array<std::string, kEnvironmentKinds> ReadingTexts(const Environment& environment);

}  // namespace quorvane::generator
