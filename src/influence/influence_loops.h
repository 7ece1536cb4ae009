#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "influence/influence_values.h"
#include "model/game_choice.h"

namespace quorvane {

inline constexpr int kTileColumns = 10;  // the steps in which progress is shown
inline constexpr int kTileRows = 8;
inline constexpr std::size_t kTilePoints = std::size_t{kTileColumns} * kTileRows;
/// Tiles are bounded in blocks of this many: a strip has room for whole blocks.
inline constexpr int kTileBlock = 4;

/// A range in one direction, both ends included.
struct LightYears {
  float First = 0;
  float Last = 0;

  float Nearest(float position) const {
    return std::max({First - position, 0.0F, position - Last});
  }
  float Farthest(float position) const { return std::max(position - First, Last - position); }
};

/// Where the points of a tile lie, column by column.
struct TilePlaces {
  alignas(64) std::array<float, kTilePoints> X = {};
  alignas(64) std::array<float, kTilePoints> Y = {};
  LightYears Columns;
  LightYears Rows;
};

/// A number for each point of a tile.
struct TileNumbers {
  alignas(64) std::array<int, kTilePoints> At = {};
};

/// A sum at each point of a tile for each player.
using TileSums = std::array<TileNumbers, kMaxPlayers + 1>;

/// A planet that may reach a strip of tiles.
struct PlanetInReach {
  RadiatingPlanet Planet;
  int FirstTile = 0;  // of those that it may reach
  int LastTile = 0;
  float NearestX = 0;  // how far the strip's columns are
  float FarthestX = 0;
};

/// The tiles of a strip: where each begins and ends, and of each player, one row of tiles after the
/// other, what the sum is at least and at most at the points of the tile.
struct StripBounds {
  std::size_t TileCount = 0;
  const float* First = nullptr;
  const float* Last = nullptr;
  int* AtLeast = nullptr;
  int* AtMost = nullptr;
};

/// What each planet's share in a tile is at least and at most, and how far from the planet,
/// squared, it is still one and two more than the least.
struct ShareBounds {
  int* AtLeast = nullptr;
  int* AtMost = nullptr;
  float* FirstStep = nullptr;
  float* SecondStep = nullptr;
};

/// A circle around a planet, within which its owner's sum is larger by one.
struct ShareStep {
  float X = 0;
  float Y = 0;
  float FarthestSquared = 0;
  int Owner = 0;
};

/// The loops that take nearly all of the time that influence takes. They are kept in more than one
/// version, for wider and narrower vectors; the results are the same.
struct InfluenceLoops {
  /// Adds what the planets of a strip give at least and at most to the sums of its tiles.
  void (*BoundStrip)(const InfluenceRule& rule, std::span<const PlanetInReach> planets,
                     const StripBounds& bounds);
  /// Bounds the share of each planet in a tile.
  void (*BoundShares)(const InfluenceRule& rule, std::span<const RadiatingPlanet> planets,
                      const TilePlaces& places, const ShareBounds& bounds);
  /// Adds one to the sums at the points of a tile that lie within each circle.
  void (*SumSteps)(std::span<const ShareStep> steps, const TilePlaces& places, TileSums& sums);
  /// Adds the planets' shares, in map order, to the sums at a tile's points.
  void (*SumShares)(const InfluenceRule& rule, std::span<const RadiatingPlanet> planets,
                    const TilePlaces& places, TileSums& sums);
  /// Finds at each point the largest sum, cut to 16 bits, and its player; the lower number among
  /// equals, 0 where all sums are 0.
  /// @param players  a bit for each player who may hold points
  void (*FindLargest)(const TileSums& sums, std::uint32_t players, TileNumbers& largest,
                      TileNumbers& holders);
  /// Sets -1 at each point that one of the planets reaches.
  void (*MarkReached)(const InfluenceRule& rule, std::span<const RadiatingPlanet> planets,
                      const TilePlaces& places, TileNumbers& isReached);
};

/// How many points are computed at once: 4, 8 or 16 numbers of 32 bits. All give the same.
enum class InfluenceVectors { Bits128, Bits256, Bits512 };

/// The loops for these vectors, or for the widest below that this processor has.
const InfluenceLoops& LoopsFor(InfluenceVectors vectors);

}  // namespace quorvane
