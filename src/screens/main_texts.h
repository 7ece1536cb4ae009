#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// The main window's caption: program and version, and for a chosen map its name and game year.
std::string MainCaption(std::string_view version, const GameChoice* choice);

/// What the user is told of the owners that a game has beyond the sixteenth race.
std::string LeftOutMessage(const std::vector<std::string>& owners);

/// What the status line says of the pointer's place, in the game's own coordinates.
std::string PointerText(const MapView& view, SurfacePoint pointer);

/// What the status line and the map's tooltip say while the pointer is at a planet.
struct HoverTexts {
  std::string StatusLine;
  std::string ToolTip;
};

/// @param planet the number of the planet under the pointer; 0: deep space
HoverTexts DescribeHover(const GameSession& session, int planet);

/// What the status line says of a redraw that the user stopped.
inline constexpr const char* kDrawingStopped = "Drawing stopped";

}  // namespace quorvane
