#pragma once

#include <string>

#include "support/temp_folder.h"

namespace quorvane {

/// The first block of a turn file, which tells its year.
std::string TurnBlock(int year);

/// A folder with a small complete game, "Demo.MAP": four planets of a 400 light year universe and
/// the reports of players 1 and 3. The Humanoids (report 1) own Alpha and Beta, the Drask Gamma.
class GameFolder : public TempFolder {
 public:
  GameFolder();

  /// Adds an old-style report of the same game.
  void AddOldReport() const;
};

}  // namespace quorvane
