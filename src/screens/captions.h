#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "map/map_view.h"
#include "model/game_choice.h"

namespace quorvane {

/// The main window's caption: program and version, and for a chosen map its name and game year.
std::string MainCaption(std::string_view version, const GameChoice* choice);

/// What the user is told of the owners that a game has beyond the sixteenth race.
std::string LeftOutMessage(const std::vector<std::string>& owners);

/// What the status line says of the pointer's place, in the game's own coordinates.
std::string PointerText(const MapView& view, SurfacePoint pointer);

}  // namespace quorvane
