#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/drawing_record.h"
#include "model/game_choice.h"
#include "model/influence_grid.h"
#include "model/planet_record.h"
#include "model/player_record.h"
#include "model/race_colours.h"

namespace quorvane {

/// Where the game's coordinates begin, in both directions.
inline constexpr int kUniverseOrigin = 1000;

/// Everything about one loaded game, and nothing about how it is shown: games of several years can
/// be in memory at once. Plain data: loading builds it, rules and drawing read it, windows write
/// single fields back.
struct GameSession : GameChoice {
  int PlanetCount = 0;
  /// Records 1 … `PlanetCount`, in map order; record 0 is not used.
  std::vector<PlanetRecord> PlanetTable;
  int PlayerCount = 0;
  /// Players 1 … `PlayerCount` in order of their first planet on the map; record 0 collects the
  /// grid points that somebody reaches but nobody holds.
  std::array<PlayerRecord, kMaxPlayers + 1> PlayerTable;
  RaceColourTable RaceColours = kDefaultRaceColours;
  /// Owner name of the user's own race; carries over from one load to the next.
  std::string MyRaceName;

  /// The universe's far edge in game coordinates, a multiple of 100.
  int UniverseExtent = 0;
  /// Light years per step of the influence grid.
  double GridCellSize = 0;
  /// Highest index of the influence grid: 650, or 649 where the division falls just short.
  int GridSize = 0;
  quorvane::InfluenceGrid InfluenceGrid;
  /// The drawing layer as read from the drawing file.
  std::vector<DrawingRecord> DrawingLayer;
  /// Owners for whom the player table has no place, in map order.
  std::vector<std::string> OwnersWithoutRecord;

  /// Whether there is a game at all: a map without planets is refused.
  bool IsLoaded() const { return PlanetCount > 0; }

  PlanetRecord& Planet(int number) { return PlanetTable.at(static_cast<std::size_t>(number)); }
  const PlanetRecord& Planet(int number) const {
    return PlanetTable.at(static_cast<std::size_t>(number));
  }
  PlayerRecord& Player(int number) { return PlayerTable.at(static_cast<std::size_t>(number)); }
  const PlayerRecord& Player(int number) const {
    return PlayerTable.at(static_cast<std::size_t>(number));
  }

  /// The planets 1 … `PlanetCount`, in map order.
  std::span<PlanetRecord> Planets();
  std::span<const PlanetRecord> Planets() const;
  /// The players 1 … `PlayerCount`.
  std::span<PlayerRecord> Players();
  std::span<const PlayerRecord> Players() const;

  /// Empties the session as every load begins: no planets, default race colours.
  void Reset();
  /// Creates `count` planet records of empty fields.
  void CreatePlanetTable(int count);
  /// Takes the universe's far edge, and the influence grid's cells that follow from it.
  void MeasureUniverse(int extent);
  /// Creates the 17 player records of empty fields.
  void CreatePlayerTable();
  /// Creates an influence grid of (size + 1) x (size + 1) points that nobody holds.
  void CreateInfluenceGrid(int size);

  /// The first player 1 … `PlayerCount` of that name (case counts), or 0.
  int FindPlayerByName(std::string_view name) const;
  /// The colour that a player is drawn in. @return nullptr for player 0 and a player without colour
  const Colour* ColourOf(int player) const;
};

}  // namespace quorvane
