#pragma once

#include <exception>
#include <filesystem>
#include <memory>
#include <string>

#include "history/sqlite_database.h"
#include "model/result.h"

namespace quorvane {

/// What the user should know of how a history was opened; mostly nothing.
struct HistoryNotice {
  std::string Words;    // a few
  std::string Details;  // with the file

  bool operator==(const HistoryNotice&) const = default;
};

/// An open history file.
struct HistoryFile {
  std::unique_ptr<SQLite::Database> Database;
  bool IsWritable = false;
  HistoryNotice Notice;
};

/// Opens, checks and if need be makes the file of a history; a damaged one is moved aside.
Result<HistoryFile> OpenHistoryFile(const std::filesystem::path& file);

/// Opens a history file that exists, to be read. It is not checked.
Result<HistoryFile> OpenHistoryFileToRead(const std::filesystem::path& file);

/// The sentence for a step that failed.
Failure HistoryFailure(const std::filesystem::path& file, const char* step,
                       const std::exception& reason);

}  // namespace quorvane
