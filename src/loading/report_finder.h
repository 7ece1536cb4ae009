#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "model/game_choice.h"

namespace quorvane {

/// Asks whether new-style reports are to be used where both styles were found.
using AskForNewStyle = std::function<bool()>;

/// Fills the choice's report rows with the reports that lie beside its map: all new-style ones
/// (.P1 … .P16), or the old-style one (.PLA) as row 1. Where both exist, `ask` decides. The first
/// row found becomes the user's own race.
/// @param gameYear  the year that an old-style report gets
/// @return false when the map has no report at all; the rows then keep what they held
bool FindReportFiles(GameChoice& choice, const std::string& gameYear, const AskForNewStyle& ask);

}  // namespace quorvane
