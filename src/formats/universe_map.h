#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/result.h"

namespace quorvane {

/// The most planets that a map may have: the program counts them in 16 bits.
inline constexpr int kMaxPlanets = 32767;

/// One line of a universe map: a planet's number, its game coordinates and its name.
struct MapPlanet {
  int Number = 0;
  int X = 0;
  int Y = 0;
  std::string Name;
};

/// A universe map as the game exported it.
struct UniverseMap {
  std::vector<MapPlanet> Planets;
  /// The far edge in game coordinates: the larger of the largest Y and the last planet's X, rounded
  /// up to the next multiple of 100 above it. The game sorts its maps by X, so the last one is the
  /// largest.
  int Extent = 0;
};

/// Reads the text of a map file: a heading line, then one planet a line, up to an end-of-file sign.
/// `fileName` is named in messages. Fails with file and line for a record without a number, X or Y,
/// for coordinates beyond 16 bits, for a number beyond 32, for a name of more than 1000 bytes, for
/// a map without planets and for one whose extent is not above 1000.
Result<UniverseMap> ParseUniverseMap(std::string_view text, std::string_view fileName);

}  // namespace quorvane
