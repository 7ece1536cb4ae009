#pragma once

#include <cstddef>
#include <vector>

#include "screens/game_memory.h"
#include "ui/preferences.h"

namespace quorvane {

/// What is remembered of the games that were shown, kept among the preferences. Without a file for
/// these it lasts as long as the program runs.
class GameMemories {
 public:
  /// How many games are offered to be opened again.
  static constexpr std::size_t kMostRecent = 10;

  explicit GameMemories(PreferencesFile& preferences);

  /// All games, the one that was opened last first.
  const std::vector<GameMemory>& Games() const { return games_; }
  /// The folders of the games that were opened last, each once.
  std::vector<std::filesystem::path> Folders() const;
  /// What is remembered of the game with that map; nullptr: nothing.
  const GameMemory* Find(const std::filesystem::path& map) const;
  /// When a game is opened that is opened now, in seconds since 1970: later than all others, even
  /// where the clock was set back.
  std::int64_t TimeOfOpening(std::int64_t now) const;
  /// Remembers a game, in the place of what was known of it.
  void Keep(const GameMemory& game);

 private:
  PreferencesFile& preferences_;
  std::vector<GameMemory> games_;
};

}  // namespace quorvane
