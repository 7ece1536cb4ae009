#pragma once

#include <string>

#include "model/game_session.h"

namespace quorvane {

/// Which game a session is a year of: 16 hexadecimal digits that follow from its map's planets,
/// their numbers, places and names. The same in every year and wherever the files lie.
std::string GameHash(const GameSession& session);

}  // namespace quorvane
