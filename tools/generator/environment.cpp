#include "generator/environment.h"

#include <algorithm>
#include <cmath>

namespace quorvane::generator {
namespace {

constexpr int kFullCloseness = 1000;
constexpr int kMostStepsPerKind = 15;

// 1000 at the centre of the range, 0 at its edge.
int Closeness(const HabRange& range, int position) {
  if (range.IsImmune) return kFullCloseness;
  const int centre = range.Centre();
  const int edge = position <= centre ? range.Low : range.High;
  return kFullCloseness * (edge - position) / (edge - centre);
}

int StepsOutside(const HabRange& range, int position) {
  if (range.Includes(position)) return 0;
  return std::min(std::max(range.Low - position, position - range.High), kMostStepsPerKind);
}

}  // namespace

int HabValue(const HabRanges& ranges, const Environment& environment) {
  int stepsOutside = 0;
  int squares = 0;
  for (std::size_t kind = 0; kind < kEnvironmentKinds; ++kind) {
    const int closeness = Closeness(ranges[kind], environment[kind]);
    stepsOutside += StepsOutside(ranges[kind], environment[kind]);
    squares += closeness * closeness;
  }
  if (stepsOutside > 0) return -stepsOutside;
  // Only the root of a whole number is taken in floating point: it is the same on every machine.
  const int meanSquare = squares / 3;
  int thousandths = static_cast<int>(std::sqrt(static_cast<double>(meanSquare)));
  for (std::size_t kind = 0; kind < kEnvironmentKinds; ++kind) {
    const int closeness = Closeness(ranges[kind], environment[kind]);
    if (closeness < kFullCloseness / 2) thousandths = thousandths * (closeness + 500) / 1000;
  }
  return (thousandths + 5) / 10;
}

Environment Terraformed(const HabRanges& ranges, Environment environment, int steps) {
  for (std::size_t kind = 0; kind < kEnvironmentKinds; ++kind) {
    if (ranges[kind].IsImmune) continue;
    const int wanted = ranges[kind].Centre() - environment[kind];
    environment[kind] += std::clamp(wanted, -steps, steps);
  }
  return environment;
}

int HundredthsOfG(int position) {
  if (position < 25) return 10000 / (800 - 24 * position);
  if (position < 50) return 10000 / (300 - 4 * position);
  if (position < 75) return 4 * position - 100;
  return 24 * position - 1600;
}

int Degrees(int position) { return 4 * position - 200; }

std::array<std::string, kEnvironmentKinds> ReadingTexts(const Environment& environment) {
  const int gravity = HundredthsOfG(environment[0]);
  const std::string decimals = std::to_string(gravity % 100);
  return {std::to_string(gravity / 100) + (decimals.size() < 2 ? ".0" : ".") + decimals + "g",
          std::to_string(Degrees(environment[1])) +
              "\xC2\xBA"
              "C",
          std::to_string(environment[2]) + "mR"};
}

}  // namespace quorvane::generator
