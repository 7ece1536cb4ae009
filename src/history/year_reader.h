#pragma once

#include <string>

#include "history/sqlite_database.h"
#include "model/game_session.h"

namespace quorvane {

/// Reads a year of a game. Throws SQLite::Exception, also for a year that is not there or not as it
/// was written.
/// @param room  a session that is not needed any more; its memory is used again
GameSession ReadStoredYear(const SQLite::Database& database, const std::string& game, int year,
                           GameSession room);

}  // namespace quorvane
