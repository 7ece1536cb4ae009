#pragma once

#include <cstdint>

#include "history/sqlite_database.h"
#include "model/game_session.h"

namespace quorvane {

/// Writes a year of a game in one transaction, in place of the one that is there. Throws
/// SQLite::Exception when that fails; then nothing has changed.
void WriteYear(SQLite::Database& database, const GameSession& session, std::int64_t loaded);

}  // namespace quorvane
