#pragma once

#include <filesystem>

#include "model/game_choice.h"

namespace quorvane {

/// Where the picture of the map is saved: beside the game's map file, named after it and, when it
/// is known, the game year. "Demo.MAP" of 2450 gives "Demo Universe Map 2450.bmp".
std::filesystem::path MapPictureFile(const GameChoice& game);

}  // namespace quorvane
