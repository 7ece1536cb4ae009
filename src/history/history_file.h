#pragma once

#include <exception>
#include <filesystem>
#include <memory>
#include <string>

#include "history/sqlite_database.h"
#include "model/result.h"

namespace quorvane {

/// An open history file.
struct HistoryFile {
  std::unique_ptr<SQLite::Database> Database;
  bool IsWritable = false;
  std::string Notice;
};

/// Opens, checks and if need be makes the file of a history; a damaged one is moved aside.
Result<HistoryFile> OpenHistoryFile(const std::filesystem::path& file);

/// Opens a history file that exists, to be read. It is not checked.
Result<HistoryFile> OpenHistoryFileToRead(const std::filesystem::path& file);

/// The sentence for a step that failed.
Failure HistoryFailure(const std::filesystem::path& file, const char* step,
                       const std::exception& reason);

}  // namespace quorvane
