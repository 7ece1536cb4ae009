#pragma once

#include <filesystem>

#include "generator/game_generator.h"
#include "model/game_choice.h"

namespace quorvane {

/// The largest game that the game itself can make, with the reports of all its players.
inline constexpr generator::GameShape kHugeShape = {
    .Side = 2000, .PlanetCount = 940, .PlayerCount = 16, .ReportCount = 16};

/// A generated game on disk for as long as the object lives. Its reports are as long as they can
/// be: players exchange what they know, so that each has a line for every planet of the map.
class GameOnDisk {
 public:
  explicit GameOnDisk(const generator::GameShape& shape);
  ~GameOnDisk();
  GameOnDisk(const GameOnDisk&) = delete;
  GameOnDisk& operator=(const GameOnDisk&) = delete;

  /// What the open dialog hands over when the user loads that game.
  GameChoice Choice(int soiSetting) const;

 private:
  std::filesystem::path folder_;
  GameChoice choice_;
};

}  // namespace quorvane
