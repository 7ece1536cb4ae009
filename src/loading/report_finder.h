#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "model/game_choice.h"

namespace quorvane {

/// A file of the map's game: the map's path, with another ending in place of its extension.
std::filesystem::path GameFile(const std::filesystem::path& mapFile, const std::string& ending);
/// "Demo.P3": the name of the new-style report of a player slot 1 … 16.
std::filesystem::path ReportFileName(const GameChoice& choice, int row);
/// "Demo.PLA": the name of the old-style report.
std::filesystem::path OldReportFileName(const GameChoice& choice);

/// Asks whether new-style reports are to be used where both styles were found.
using AskForNewStyle = std::function<bool()>;

/// Makes a map file the chosen one: the choice's map, folder and the five companion paths beside
/// it.
void ChooseMap(GameChoice& choice, const std::filesystem::path& mapFile);

/// Fills the choice's report rows with the reports that lie beside its map: all new-style ones
/// (.P1 … .P16), or the old-style one (.PLA) as row 1. Where both exist, `ask` decides. The first
/// row found becomes the user's own race.
/// @param gameYear  the year that an old-style report gets
/// @return false when the map has no report at all; the rows then keep what they held
bool FindReportFiles(GameChoice& choice, const std::string& gameYear, const AskForNewStyle& ask);

}  // namespace quorvane
