#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "history/history_file.h"
#include "history/race_years.h"
#include "history/sqlite_database.h"
#include "model/game_session.h"
#include "model/result.h"

namespace quorvane {

/// How a year of a game was loaded when it was stored.
struct StoredYear {
  int Year = 0;
  std::string OwnRace;
  int ReportStyle = kNewReportStyle;
  int SoiSetting = 0;
  std::int64_t Loaded = 0;  // seconds since 1970

  bool operator==(const StoredYear&) const = default;
};

/// The years of all games that were loaded, in one database file. A year is in it whole or not at
/// all, whenever the program or the machine stops. Several programs may have the same file open.
/// Nothing here throws; what fails tells why in one sentence. One object is for one thread.
class History {
 public:
  /// Opens a history to store years, and makes a new one where there is none. A file that is
  /// damaged is kept under another name, and a new one begun; one that a newer version wrote, or
  /// that may not be written, is opened to be read.
  static Result<History> Open(const std::filesystem::path& file);
  /// Opens a history that exists, to read years only.
  static Result<History> OpenToRead(const std::filesystem::path& file);

  History(History&& other) noexcept;
  History& operator=(History&& other) noexcept;
  ~History();

  /// Whether years can be stored.
  bool IsWritable() const { return isWritable_; }
  const HistoryNotice& Notice() const { return notice_; }

  /// Stores all that is known of a year of a game, but for the influence grid, which can be
  /// computed again. The same year of the game is replaced. Fails for a session whose year is not
  /// known.
  /// @param loaded  when the year was loaded, in seconds since 1970
  Result<void> Store(const GameSession& session, std::int64_t loaded);
  /// Deletes all years of a game.
  Result<void> Forget(const std::string& game);

  /// The stored years of a game in ascending order; none of a game that is not known.
  /// @param game  its `GameHash`
  Result<std::vector<StoredYear>> Years(const std::string& game) const;
  /// A stored year with every field as it was, the race colours of its players and the drawing
  /// layer. Its influence grid is not computed, and the choice has nothing of the files.
  /// @param room  a session that is not needed any more; its memory is used again
  Result<GameSession> ReadYear(const std::string& game, int year, GameSession room = {}) const;
  /// What each stored year tells of each race, in the order of years and players.
  Result<std::vector<RaceYear>> RaceYears(const std::string& game) const;

 private:
  History(std::filesystem::path file, std::unique_ptr<SQLite::Database> database, bool isWritable,
          HistoryNotice notice);

  std::filesystem::path file_;
  std::unique_ptr<SQLite::Database> database_;
  bool isWritable_ = false;
  HistoryNotice notice_;
};

}  // namespace quorvane
