#pragma once

#include "generator/game_generator.h"
#include "model/game_session.h"
#include "support/temp_folder.h"

namespace quorvane {

/// Writes a generated game into a folder as "Demo.map", "Demo.p1" ... and loads it as the open
/// dialog would, with the years that its reports have.
GameSession LoadGenerated(const TempFolder& folder, const generator::GeneratedGame& game,
                          int soiSetting = 100);

/// Expects that a session is what another one is: every field, grid point and drawing.
void ExpectSameGame(const GameSession& read, const GameSession& loaded);

}  // namespace quorvane
