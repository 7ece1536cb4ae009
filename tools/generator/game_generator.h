#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "formats/universe_map.h"
#include "model/game_choice.h"
#include "model/result.h"

namespace quorvane::generator {

/// What kind of game is wanted. The same shape always gives the same files.
struct GameShape {
  std::uint64_t Seed = 1;
  int Side = 800;  // of the universe in light years, 400 … 3200
  int PlanetCount = 130;
  int PlayerCount = 8;  // 1 … 16
  /// Players 1 … `ReportCount` have exported a new-style report; not used in an old-style game.
  int ReportCount = 5;
  /// Whose game it is: that player's report is of the game's year, the others may be older. The one
  /// old-style report is that player's, too.
  int OwnSlot = 1;
  int Style = kNewReportStyle;  // or `kOldReportStyle`
  int Year = 2450;              // 2401 … 3000
  int AgeSpread = 6;            // years by which the others' reports may be older
  bool HasCompanions = false;   // whether the program's own files lie beside the game's
  bool HasTurnFiles = false;    // whether every player's turn file and the host's are there
  /// Whether the years of `GenerateYears` are a war: planets change hands all the time, races die
  /// out, and now and then a player has not exported a report.
  bool IsWar = false;
};

/// One file of a game: what follows the game's name, ".p1" for instance, and the file's bytes.
struct GeneratedFile {
  std::string Extension;
  std::string Content;
};

/// A complete game in memory.
struct GeneratedGame {
  std::vector<GeneratedFile> Files;
  int Year = 0;
  int OwnSlot = 1;
  /// The year of the report of slot 1, 2, …; of the one report in an old-style game. A missing
  /// report has one as well.
  std::vector<int> ReportYears;

  /// The content of the file of that extension, nullptr when the game has none.
  const std::string* Content(std::string_view extension) const;
};

/// Whether a game can be made in that shape; if not, a sentence says what is wrong with it.
Result<void> CheckShape(const GameShape& shape);

/// Makes a game with its map: empires that grew from their home worlds, and reports of different
/// ages that disagree about them. The shape must pass `CheckShape`.
GeneratedGame GenerateGame(const GameShape& shape);

/// How many years of one game can be made.
inline constexpr int kMostYears = 50;
inline constexpr int kMostYearsOfWar = 200;
inline int MostYears(const GameShape& shape) { return shape.IsWar ? kMostYearsOfWar : kMostYears; }

/// Makes the shape's year of a game and the years behind it, 1 … `MostYears` together, each with
/// all its files. The map stays the same to the byte; from year to year the empires settle more
/// planets and grow, and now and then a planet changes hands or is given up. A year's files do not
/// depend on how many years are made. The game is another one than `GenerateGame` gives: its
/// empires leave more planets free for the years to come.
std::vector<GeneratedGame> GenerateYears(const GameShape& shape, int years);

/// Makes reports for a map that exists already; the game then has no map file of its own. `Side`
/// and `PlanetCount` of the shape are not used. Needs at least as many planets as players.
GeneratedGame GenerateReportsForMap(std::span<const MapPlanet> map, const GameShape& shape);

/// Writes the game's files into a folder, which is made if need be, replacing older ones.
Result<void> WriteGame(const GeneratedGame& game, const std::filesystem::path& folder,
                       std::string_view baseName);

}  // namespace quorvane::generator
