#pragma once

#include <filesystem>
#include <string>

#include "model/game_choice.h"

namespace quorvane {

/// A file of the map's game: the map's path, with another ending in place of its extension.
std::filesystem::path GameFile(const std::filesystem::path& mapFile, const std::string& ending);
/// "Demo.P3": the name of the new-style report of a player slot 1 … 16.
std::filesystem::path ReportFileName(const GameChoice& choice, int row);
/// "Demo.PLA": the name of the old-style report.
std::filesystem::path OldReportFileName(const GameChoice& choice);
/// Where the picture of the map is saved: beside the game's map file, named after it and, when it
/// is known, the game year. "Demo.MAP" of 2450 gives "Demo Universe Map 2450.bmp".
std::filesystem::path MapPictureFile(const GameChoice& game);

/// Makes a map file the chosen one: the choice's map, folder and the five companion paths beside
/// it.
void ChooseMap(GameChoice& choice, const std::filesystem::path& mapFile);

}  // namespace quorvane
