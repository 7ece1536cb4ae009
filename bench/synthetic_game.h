#pragma once

#include <cstdint>

#include "model/game_session.h"

namespace quorvane {

/// How large a made-up game is, and how its planets are settled.
struct InfluenceGameShape {
  int Width = 400;  // light years, in both directions
  int Planets = 32;
  int Players = 4;  // 0 … 16
  int SoiSetting = 100;
  /// How many of the planets are settled, 0 … 1.
  double SettledShare = 0.9;
  /// Empires grow around home worlds; otherwise everybody's planets lie everywhere.
  bool Clustered = true;
  /// Of a home world; colonies have less.
  double LargestPopulation = 1'100'000;
  std::uint32_t Seed = 1;
};

inline constexpr InfluenceGameShape kTinyGame = {400, 32, 4};
inline constexpr InfluenceGameShape kMediumGame = {1200, 350, 10};
inline constexpr InfluenceGameShape kHugeGame = {2000, 940, 16};
inline constexpr InfluenceGameShape kVastGame = {3200, 5000, 16};
/// As many planets as a map can have, with small colonies of all players mixed at random: sums are
/// small, nearly alike, and each is of thousands of shares.
inline constexpr InfluenceGameShape kCrowdedGame = {.Width = 800,
                                                    .Planets = 32767,
                                                    .Players = 16,
                                                    .SoiSetting = 500,
                                                    .SettledShare = 1,
                                                    .Clustered = false,
                                                    .LargestPopulation = 40'000};

/// A game in memory as the loader leaves it before the influence is computed: geometry, planets
/// with stored X, Y, `SoiRadius` and `OwnerIndex`, and nameless players. The same shape gives the
/// same game with every compiler and on every machine.
GameSession MakeInfluenceGame(const InfluenceGameShape& shape);

/// Any game of a series made to find mistakes: hardly any influence or far too much of it, exact
/// halves, ties, missing owners, odd settings, whole grids and corners. The number decides all.
GameSession MakeAwkwardGame(unsigned number);

}  // namespace quorvane
