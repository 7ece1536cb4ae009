#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "loading/game_file_stamps.h"
#include "map/map_view.h"
#include "map/overlay_kind.h"
#include "model/game_choice.h"

namespace quorvane {

/// How a game was shown, apart from the places of windows.
struct ShownState {
  OverlaySwitches Switches;  // with the race of the estimate
  /// The window of a zoomed map; nothing: the whole universe.
  struct Window {
    int XMin = 0;
    int XMax = 0;
    int YMin = 0;
    int YMax = 0;

    bool operator==(const Window&) const = default;
  };
  std::optional<Window> Zoom;
  /// The stored position of the selected planet; 0, 0: none.
  int SelectedX = 0;
  int SelectedY = 0;
  /// The open tab of the details.
  int Tab = 0;

  bool operator==(const ShownState&) const = default;
};

/// The view of a window that was remembered; nothing for one that is none of the whole universe
/// which `full` shows.
std::optional<MapView> ViewOf(const ShownState::Window& window, const MapView& full);

/// What is remembered of a game between two runs of the program.
struct GameMemory {
  /// As it was loaded last.
  GameChoice Choice;
  ShownState Shown;
  /// The game's files as they were then, so that a later look tells what is new.
  std::vector<GameFileStamp> Files;
  /// When that was: seconds since 1970.
  std::int64_t Opened = 0;
};

}  // namespace quorvane
