#include "history/year_reader.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>
#include <utility>

#include "history/game_hash.h"
#include "rules/player_statistics.h"

namespace quorvane {
namespace {

[[noreturn]] void Refuse(const std::string& what) { throw SQLite::Exception(what); }

int WholeWithin(const SQLite::Column& column, std::int64_t lowest, std::int64_t highest) {
  const std::int64_t number = column.getInt64();
  if (!column.isInteger() || number < lowest || number > highest) Refuse("a number is damaged");
  return static_cast<int>(number);
}

void TakeField(FieldValue& field, const SQLite::Column& column) {
  switch (column.getType()) {
    case SQLITE_INTEGER:
      field = column.getInt64();
      return;
    case SQLITE_FLOAT:
      field = column.getDouble();
      return;
    case SQLITE_TEXT: {
      const char* text = column.getText();
      field.SetText(std::string_view(text, static_cast<std::size_t>(column.getBytes())));
      return;
    }
    case SQLITE_NULL:
      field = FieldValue();
      return;
    default:
      Refuse("a field is damaged");
  }
}

std::int64_t ReadHead(const SQLite::Database& database, const std::string& game, int year,
                      GameSession& session) {
  constexpr int kLargestExtent = std::numeric_limits<std::int16_t>::max() + 2 * kUniverseOrigin;
  SQLite::Statement head(database,
                         "SELECT years.id, extent, own_race, report_style, sphere_setting "
                         "FROM years JOIN games ON games.id = game WHERE hash = ? AND year = ?");
  head.bind(1, game);
  head.bind(2, year);
  if (!head.executeStep()) Refuse("year " + std::to_string(year) + " is not there");
  session.GameYear = year;
  session.MeasureUniverse(WholeWithin(head.getColumn(1), kUniverseOrigin + 1, kLargestExtent));
  session.MyRaceName = head.getColumn(2).getString();
  session.ReportStyle = head.getColumn(3).getInt();
  session.SoiSetting = WholeWithin(head.getColumn(4), kSmallestSoiSetting, kLargestSoiSetting);
  return head.getColumn(0).getInt64();
}

std::size_t CountPlanets(const SQLite::Database& database, std::int64_t year) {
  SQLite::Statement count(database, "SELECT count(*) FROM planets WHERE year_id = ?");
  count.bind(1, year);
  count.executeStep();
  return static_cast<std::size_t>(count.getColumn(0).getInt64());
}

// A history that nobody may write to can still have the tables of an older version.
void TakeExtras(PlanetRecord& planet, const SQLite::Statement& row) {
  constexpr int kFirstColumn = static_cast<int>(kPlanetFieldCount) + 2;
  constexpr int kLeftOutColumn = kFirstColumn + static_cast<int>(kPlanetExtraCount);
  if (row.getColumnCount() <= kLeftOutColumn) return;
  for (std::size_t extra = 0; extra < kPlanetExtraCount; ++extra) {
    TakeField(planet[static_cast<PlanetExtra>(extra)],
              row.getColumn(kFirstColumn + static_cast<int>(extra)));
  }
  planet.LeftOut() = static_cast<std::uint64_t>(row.getColumn(kLeftOutColumn).getInt64());
}

void ReadPlanets(const SQLite::Database& database, std::int64_t year, GameSession& session) {
  SQLite::Statement rows(database, "SELECT * FROM planets WHERE year_id = ? ORDER BY planet");
  rows.bind(1, year);
  session.PlanetTable.resize(CountPlanets(database, year) + 1);
  session.PlanetCount = static_cast<int>(session.PlanetTable.size()) - 1;
  for (int number = 1; number <= session.PlanetCount; ++number) {
    if (!rows.executeStep() || rows.getColumn(1).getInt() != number) Refuse("a planet is missing");
    PlanetRecord& planet = session.Planet(number);
    for (std::size_t field = 1; field <= kPlanetFieldCount; ++field) {
      TakeField(planet.Field(field), rows.getColumn(static_cast<int>(field) + 1));
    }
    TakeExtras(planet, rows);
    const double radius = planet[PlanetField::SoiRadius].Number();
    if (!(radius >= 0 && radius <= session.SoiSetting)) Refuse("a sphere is damaged");
  }
}

void TakeColour(const SQLite::Column& column, int slot, GameSession& session) {
  if (slot == 0) return;
  const int colour = WholeWithin(column, 0, 0xFFFFFF);
  session.RaceColours.at(static_cast<std::size_t>(slot) - 1) = {colour >> 16, (colour >> 8) & 0xFF,
                                                                colour & 0xFF};
}

// The planets say who the players are; the rows have what is known of them.
void ReadPlayers(const SQLite::Database& database, std::int64_t year, GameSession& session) {
  session.CreatePlayerTable();
  session.OwnersWithoutRecord.clear();
  DiscoverPlayers(session);
  SQLite::Statement rows(database, "SELECT * FROM players WHERE year_id = ? ORDER BY player");
  rows.bind(1, year);
  for (int number = 1; number <= session.PlayerCount; ++number) {
    if (!rows.executeStep() || rows.getColumn(1).getInt() != number) Refuse("a player is missing");
    PlayerRecord& player = session.Player(number);
    const std::string name = player.Name();
    for (std::size_t field = 1; field <= kPlayerFieldCount; ++field) {
      TakeField(player.Field(field), rows.getColumn(static_cast<int>(field) + 3));
    }
    const double slot = player[PlayerField::ColourSlot].Number();
    const bool isSlot = slot >= 0 && slot <= static_cast<double>(kColourSlots);
    if (player.Name() != name || !isSlot) Refuse("a player is damaged");
    TakeColour(rows.getColumn(2), player.ColourSlot(), session);
  }
}

DrawingKind KindOf(const std::string& text) {
  for (const DrawingKind kind : {DrawingKind::Line, DrawingKind::Circle, DrawingKind::Text}) {
    if (text == std::string(1, static_cast<char>(kind))) return kind;
  }
  Refuse("a drawing is damaged");
}

std::vector<DrawingRecord> ReadDrawings(const SQLite::Database& database, std::int64_t year) {
  SQLite::Statement rows(database, "SELECT * FROM drawings WHERE year_id = ? ORDER BY number");
  rows.bind(1, year);
  const auto whole = [&rows](int column) {
    return WholeWithin(rows.getColumn(column), std::numeric_limits<std::int32_t>::min(),
                       std::numeric_limits<std::int32_t>::max());
  };
  std::vector<DrawingRecord> drawings;
  while (rows.executeStep()) {
    drawings.push_back({.Kind = KindOf(rows.getColumn(2).getString()),
                        .X = whole(3),
                        .Y = whole(4),
                        .X2 = whole(5),
                        .Y2 = whole(6),
                        .Radius = whole(7),
                        .Text = rows.getColumn(8).getString(),
                        .Size = rows.getColumn(9).getDouble(),
                        .ColourNumber = whole(10)});
  }
  return drawings;
}

}  // namespace

GameSession ReadStoredYear(const SQLite::Database& database, const std::string& game, int year,
                           GameSession room) {
  GameSession session = std::move(room);
  session.Reset();
  const std::int64_t id = ReadHead(database, game, year, session);
  ReadPlanets(database, id, session);
  // With the same planets all that is drawn and computed with their places is right.
  if (!session.IsLoaded() || GameHash(session) != game) Refuse("its planets are damaged");
  ReadPlayers(database, id, session);
  session.DrawingLayer = ReadDrawings(database, id);
  return session;
}

}  // namespace quorvane
