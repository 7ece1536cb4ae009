#pragma once

#include "history/sqlite_database.h"

namespace quorvane {

/// The version of the tables that this program writes.
inline constexpr int kTablesVersion = 2;

/// The version of a database's tables; 0 for a new one.
int TablesVersion(SQLite::Database& database);

/// Gives a database its tables, or brings those of an older version up to date, in one transaction.
/// Throws SQLite::Exception when that fails; then nothing has changed.
void MakeTables(SQLite::Database& database);

/// Throws SQLite::Exception where a table or a column of it is missing.
void CheckTables(SQLite::Database& database);

}  // namespace quorvane
