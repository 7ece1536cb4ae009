#include "history/history_file.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <string_view>
#include <system_error>
#include <utility>

#include "history/history_tables.h"

namespace quorvane {
namespace {

constexpr int kWriterPatience = 5000;  // milliseconds that another program may take for its step
constexpr int kReaderPatience = 500;

std::string ShownPath(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::filesystem::path WithSuffix(std::filesystem::path path, const std::string& suffix) {
  path += suffix;
  return path;
}

// Nothing in the file is to be believed before it was looked at.
std::unique_ptr<SQLite::Database> Connect(const std::string& name, int flags, int patience) {
  auto database = std::make_unique<SQLite::Database>(name, flags, patience);
  sqlite3_db_config(database->getHandle(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  database->exec("PRAGMA trusted_schema = OFF; PRAGMA cell_size_check = ON");
  return database;
}

// A file of which the content, not the way to it, is at fault.
bool IsDamage(const SQLite::Exception& fault) {
  const int code = fault.getErrorCode();
  return code == SQLITE_NOTADB || code == SQLITE_CORRUPT || code == SQLITE_FORMAT ||
         code == SQLITE_ERROR || code == SQLITE_SCHEMA || code == SQLITE_MISMATCH;
}

void CheckContent(SQLite::Database& database) {
  const std::string verdict = database.execAndGet("PRAGMA quick_check(1)").getString();
  if (verdict != "ok") throw SQLite::Exception(verdict, SQLITE_CORRUPT);
}

// The name of a file as one that nobody changes meanwhile.
std::string UnchangingName(const std::filesystem::path& file) {
  std::string name = "file:";
  for (const char each : ShownPath(file)) {
    constexpr std::string_view kMeaningful = "%?#";
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(each);
    if (kMeaningful.find(each) == kMeaningful.npos) {
      name += each;
    } else {
      name += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
  }
  return name + "?immutable=1";
}

HistoryFile OpenToReadOnly(const std::filesystem::path& file) {
  const auto open = [](const std::string& name, int flags) {
    HistoryFile opened{.Database = Connect(name, SQLite::OPEN_READONLY | flags, kReaderPatience)};
    TablesVersion(*opened.Database);  // finds out whether it can be read
    return opened;
  };
  try {
    return open(ShownPath(file), 0);
  } catch (const SQLite::Exception&) {
    // Where nothing may be written, there is no place for what readers and writers agree on.
    return open(UnchangingName(file), SQLite::OPEN_URI);
  }
}

HistoryFile OpenToWrite(const std::filesystem::path& file) {
  HistoryFile opened{
      .Database =
          Connect(ShownPath(file), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, kWriterPatience)};
  SQLite::Database& database = *opened.Database;
  CheckContent(database);
  if (TablesVersion(database) > kTablesVersion) {
    opened.Database.reset();
    opened = OpenToReadOnly(file);
    opened.Notice = {"History of a newer version",
                     "The history was written by a newer version, and nothing is added to it: " +
                         ShownPath(file)};
    return opened;
  }
  // Where a network's folders cannot do this, the older way of writing goes on.
  database.tryExec("PRAGMA journal_mode = WAL");
  database.exec("PRAGMA foreign_keys = ON; PRAGMA synchronous = NORMAL");
  MakeTables(database);
  CheckTables(database);
  opened.IsWritable = true;
  return opened;
}

// @return the new name; empty where the file could not be renamed
std::filesystem::path SetAside(const std::filesystem::path& file) {
  std::filesystem::path kept = WithSuffix(file, ".damaged");
  for (int number = 2; std::filesystem::exists(kept); ++number) {
    kept = WithSuffix(file, ".damaged-" + std::to_string(number));
  }
  std::error_code fault;
  std::filesystem::rename(file, kept, fault);
  if (fault) return {};
  // What was not yet taken over into the file belongs to it.
  for (const char* suffix : {"-wal", "-shm"}) {
    std::filesystem::rename(WithSuffix(file, suffix), WithSuffix(kept, suffix), fault);
  }
  return kept;
}

HistoryFile BeginAnew(const std::filesystem::path& file, const SQLite::Exception& fault) {
  const std::filesystem::path kept = SetAside(file);
  if (kept.empty()) throw SQLite::Exception(fault);
  HistoryFile opened = OpenToWrite(file);
  opened.Notice = {"History was damaged",
                   "The history was damaged; the file is kept as " + ShownPath(kept)};
  return opened;
}

}  // namespace

Failure HistoryFailure(const std::filesystem::path& file, const char* step,
                       const std::exception& reason) {
  return {std::string(step) + ": " + ShownPath(file) + ": " + reason.what()};
}

Result<HistoryFile> OpenHistoryFileToRead(const std::filesystem::path& file) {
  try {
    return OpenToReadOnly(file);
  } catch (const std::exception& fault) {
    return HistoryFailure(file, "The history cannot be read", fault);
  }
}

Result<HistoryFile> OpenHistoryFile(const std::filesystem::path& file) {
  try {
    std::filesystem::create_directories(file.parent_path());
    try {
      return OpenToWrite(file);
    } catch (const SQLite::Exception& fault) {
      if (IsDamage(fault)) return BeginAnew(file, fault);
      throw;
    }
  } catch (const std::exception& fault) {
    Result<HistoryFile> readable = OpenHistoryFileToRead(file);
    if (!readable) return HistoryFailure(file, "No history can be kept", fault);
    readable->Notice = {"History can only be read",
                        HistoryFailure(file, "The history can only be read", fault).Message};
    return readable;
  }
}

}  // namespace quorvane
