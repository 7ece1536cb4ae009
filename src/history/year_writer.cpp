#include "history/year_writer.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <string>
#include <vector>

#include "history/game_hash.h"

namespace quorvane {
namespace {

// "INSERT INTO players VALUES (?,?,?)" with as many values as the table has columns.
std::string InsertInto(const char* table, std::size_t columns) {
  std::string query = std::string("INSERT INTO ") + table + " VALUES (?";
  for (std::size_t column = 1; column < columns; ++column) query += ",?";
  return query + ")";
}

// Fills the statement's values from the left.
class Row {
 public:
  explicit Row(SQLite::Statement& statement) : statement_(statement) {}

  Row& Number(std::int64_t number) {
    statement_.bind(++column_, number);
    return *this;
  }
  Row& Real(double number) {
    statement_.bind(++column_, number);
    return *this;
  }
  Row& Text(const std::string& text) {
    statement_.bindNoCopy(++column_, text);
    return *this;
  }
  Row& Nothing() {
    statement_.bind(++column_);
    return *this;
  }
  Row& Field(const FieldValue& value) {
    switch (value.Kind()) {
      case FieldKind::Text:
        return Text(value.Text());
      case FieldKind::Whole:
        return Number(static_cast<std::int64_t>(value.Number()));
      case FieldKind::Real:
        return Real(value.Number());
      case FieldKind::Empty:
        break;
    }
    return Nothing();
  }
  void Insert() {
    statement_.exec();
    statement_.reset();
    column_ = 0;
  }

 private:
  SQLite::Statement& statement_;
  int column_ = 0;
};

std::string NameOf(const GameSession& session) {
  const std::u8string name = session.MapFilePath.stem().u8string();
  return {name.begin(), name.end()};
}

std::int64_t TakeGame(SQLite::Database& database, const GameSession& session) {
  const std::string hash = GameHash(session);
  const std::string name = NameOf(session);
  SQLite::Statement taken(database,
                          "INSERT INTO games (hash, name, extent) VALUES (?, ?, ?) "
                          "ON CONFLICT (hash) DO UPDATE SET name = excluded.name, "
                          "extent = excluded.extent RETURNING id");
  Row(taken).Text(hash).Text(name).Number(session.UniverseExtent);
  taken.executeStep();
  const std::int64_t game = taken.getColumn(0).getInt64();
  while (taken.executeStep()) {
  }
  return game;
}

std::int64_t AddYear(SQLite::Database& database, const GameSession& session, std::int64_t loaded) {
  const std::int64_t game = TakeGame(database, session);
  SQLite::Statement replaced(database, "DELETE FROM years WHERE game = ? AND year = ?");
  Row(replaced).Number(game).Number(session.GameYear).Insert();
  SQLite::Statement added(database,
                          "INSERT INTO years (game, year, own_race, report_style, sphere_setting, "
                          "loaded) VALUES (?, ?, ?, ?, ?, ?)");
  Row(added)
      .Number(game)
      .Number(session.GameYear)
      .Text(session.MyRaceName)
      .Number(session.ReportStyle)
      .Number(session.SoiSetting)
      .Number(loaded)
      .Insert();
  return database.getLastInsertRowid();
}

std::vector<int> CountStarbases(const GameSession& session) {
  std::vector<int> counts(session.PlayerTable.size());
  for (const PlanetRecord& planet : session.Planets()) {
    if (planet.HasStarbase()) ++counts.at(static_cast<std::size_t>(planet.OwnerIndex()));
  }
  return counts;
}

void AddPlayers(SQLite::Database& database, const GameSession& session, std::int64_t year) {
  constexpr std::size_t kOtherColumns = 4;
  SQLite::Statement added(database, InsertInto("players", kOtherColumns + kPlayerFieldCount));
  Row row(added);
  const std::vector<int> starbases = CountStarbases(session);
  for (int player = 1; player <= session.PlayerCount; ++player) {
    row.Number(year).Number(player);
    if (const Colour* colour = session.ColourOf(player)) {
      row.Number(colour->Red << 16 | colour->Green << 8 | colour->Blue);
    } else {
      row.Nothing();
    }
    row.Number(starbases.at(static_cast<std::size_t>(player)));
    for (std::size_t field = 1; field <= kPlayerFieldCount; ++field) {
      row.Field(session.Player(player).Field(field));
    }
    row.Insert();
  }
}

void AddPlanets(SQLite::Database& database, const GameSession& session, std::int64_t year) {
  constexpr std::size_t kOtherColumns = 3;
  SQLite::Statement added(
      database, InsertInto("planets", kOtherColumns + kPlanetFieldCount + kPlanetExtraCount));
  Row row(added);
  for (int number = 1; number <= session.PlanetCount; ++number) {
    const PlanetRecord& planet = session.Planet(number);
    row.Number(year).Number(number);
    for (std::size_t field = 1; field <= kPlanetFieldCount; ++field) row.Field(planet.Field(field));
    for (std::size_t extra = 0; extra < kPlanetExtraCount; ++extra) {
      row.Field(planet[static_cast<PlanetExtra>(extra)]);
    }
    row.Number(static_cast<std::int64_t>(planet.LeftOut().to_ullong()));
    row.Insert();
  }
}

void AddDrawings(SQLite::Database& database, const GameSession& session, std::int64_t year) {
  constexpr std::size_t kColumns = 11;
  SQLite::Statement added(database, InsertInto("drawings", kColumns));
  Row row(added);
  int number = 0;
  for (const DrawingRecord& drawing : session.DrawingLayer) {
    const std::string kind(1, static_cast<char>(drawing.Kind));
    row.Number(year).Number(++number).Text(kind);
    row.Number(drawing.X).Number(drawing.Y).Number(drawing.X2).Number(drawing.Y2);
    row.Number(drawing.Radius).Text(drawing.Text).Real(drawing.Size);
    row.Number(drawing.ColourNumber).Insert();
  }
}

}  // namespace

void WriteYear(SQLite::Database& database, const GameSession& session, std::int64_t loaded) {
  SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
  const std::int64_t year = AddYear(database, session, loaded);
  AddPlayers(database, session, year);
  AddPlanets(database, session, year);
  AddDrawings(database, session, year);
  transaction.commit();
}

}  // namespace quorvane
