#include "history/history.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <utility>

#include "history/year_reader.h"
#include "history/year_writer.h"

namespace quorvane {

History::History(std::filesystem::path file, std::unique_ptr<SQLite::Database> database,
                 bool isWritable, HistoryNotice notice)
    : file_(std::move(file)),
      database_(std::move(database)),
      isWritable_(isWritable),
      notice_(std::move(notice)) {}
History::History(History&& other) noexcept = default;
History& History::operator=(History&& other) noexcept = default;
History::~History() = default;

Result<History> History::Open(const std::filesystem::path& file) {
  Result<HistoryFile> opened = OpenHistoryFile(file);
  if (!opened) return opened.Error();
  return History(file, std::move(opened->Database), opened->IsWritable, std::move(opened->Notice));
}

Result<History> History::OpenToRead(const std::filesystem::path& file) {
  Result<HistoryFile> opened = OpenHistoryFileToRead(file);
  if (!opened) return opened.Error();
  return History(file, std::move(opened->Database), false, {});
}

Result<void> History::Store(const GameSession& session, std::int64_t loaded) {
  if (session.GameYear < 1) return Failure{"A game without a year is not kept"};
  try {
    WriteYear(*database_, session, loaded);
    database_->tryExec("PRAGMA wal_checkpoint");  // so that a copy of the file alone is complete
    return {};
  } catch (const std::exception& fault) {
    return HistoryFailure(file_, "The year is not kept", fault);
  }
}

Result<void> History::Forget(const std::string& game) {
  try {
    SQLite::Statement forgotten(*database_, "DELETE FROM games WHERE hash = ?");
    forgotten.bind(1, game);
    forgotten.exec();
  } catch (const std::exception& fault) {
    return HistoryFailure(file_, "The history is not forgotten", fault);
  }
  database_->tryExec("VACUUM");  // gives the room back, unless another program reads just now
  return {};
}

Result<std::vector<StoredYear>> History::Years(const std::string& game) const {
  try {
    SQLite::Statement rows(*database_,
                           "SELECT year, own_race, report_style, sphere_setting, loaded FROM years "
                           "JOIN games ON games.id = game WHERE hash = ? ORDER BY year");
    rows.bind(1, game);
    std::vector<StoredYear> years;
    while (rows.executeStep()) {
      years.push_back({.Year = rows.getColumn(0).getInt(),
                       .OwnRace = rows.getColumn(1).getString(),
                       .ReportStyle = rows.getColumn(2).getInt(),
                       .SoiSetting = rows.getColumn(3).getInt(),
                       .Loaded = rows.getColumn(4).getInt64()});
    }
    return years;
  } catch (const std::exception& fault) {
    return HistoryFailure(file_, "The history cannot be read", fault);
  }
}

Result<GameSession> History::ReadYear(const std::string& game, int year, GameSession room) const {
  try {
    SQLite::Transaction oneMoment(*database_);  // another program may store the same year just now
    return ReadStoredYear(*database_, game, year, std::move(room));
  } catch (const std::exception& fault) {
    return HistoryFailure(file_, "The history cannot be read", fault);
  }
}

Result<std::vector<RaceYear>> History::RaceYears(const std::string& game) const {
  try {
    SQLite::Statement rows(
        *database_,
        "SELECT years.year, players.Name, colour, PlanetsOwned, TotalPopulation, TotalResources, "
        "Territory, starbases, TotalIron + TotalBora + TotalGerm FROM games "
        "JOIN years ON years.game = games.id JOIN players ON players.year_id = years.id "
        "WHERE hash = ? ORDER BY years.year, player");
    rows.bind(1, game);
    std::vector<RaceYear> years;
    while (rows.executeStep()) {
      const int colour = rows.getColumn(2).getInt() & 0xFFFFFF;
      years.push_back({.Year = rows.getColumn(0).getInt(),
                       .Race = rows.getColumn(1).getString(),
                       .RaceColour = {colour >> 16, (colour >> 8) & 0xFF, colour & 0xFF},
                       .Planets = rows.getColumn(3).getDouble(),
                       .Population = rows.getColumn(4).getDouble(),
                       .Resources = rows.getColumn(5).getDouble(),
                       .Territory = rows.getColumn(6).getDouble(),
                       .Starbases = rows.getColumn(7).getDouble(),
                       .Minerals = rows.getColumn(8).getDouble()});
    }
    return years;
  } catch (const std::exception& fault) {
    return HistoryFailure(file_, "The history cannot be read", fault);
  }
}

}  // namespace quorvane
