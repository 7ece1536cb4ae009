#pragma once

#include "model/game_session.h"

namespace quorvane {

/// Puts a player's six range fields at their starting values: every minimum at the top of its scale
/// and every maximum at the bottom, ready for a minimum and maximum scan.
void ResetHabRanges(PlayerRecord& player);

/// Estimates a race's gravity, temperature and radiation range from the planets that the player
/// owns, because the game's reports do not state them: each range spans the readings of those
/// planets, and one that comes out narrow is widened upwards. A player without planets ends with
/// every minimum above its maximum.
void EstimateHabRanges(GameSession& session, int player);

}  // namespace quorvane
