#pragma once

#include "history/history.h"
#include "model/game_choice.h"

namespace quorvane {

/// A stored year of a game as if it had been loaded, influence included.
/// @param choice  with what the game on the screen was loaded; style, sphere and year are the
/// stored
///                year's
/// @param room  a session that is not needed any more; its memory is used again
Result<GameSession> SessionOfYear(const History& history, const std::string& game, int year,
                                  const GameChoice& choice, GameSession room = {});

}  // namespace quorvane
