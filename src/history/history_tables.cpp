#include "history/history_tables.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace quorvane {
namespace {

// The columns of a field have no declared kind, so that a value is kept in its own. Those that a
// load only ever gives real numbers say so: whole ones then take a byte or two instead of eight.
// They stand in the order of the fields' numbers, and year_writer.cpp and year_reader.cpp count on
// that.
constexpr const char* kFirstTables = R"(
CREATE TABLE games (
  id INTEGER PRIMARY KEY,
  hash TEXT NOT NULL UNIQUE,
  name TEXT NOT NULL,
  extent INTEGER NOT NULL
);
CREATE TABLE years (
  id INTEGER PRIMARY KEY,
  game INTEGER NOT NULL REFERENCES games (id) ON DELETE CASCADE,
  year INTEGER NOT NULL,
  own_race TEXT NOT NULL,
  report_style INTEGER NOT NULL,
  sphere_setting INTEGER NOT NULL,
  loaded INTEGER NOT NULL,
  UNIQUE (game, year)
);
CREATE TABLE players (
  year_id INTEGER NOT NULL REFERENCES years (id) ON DELETE CASCADE,
  player INTEGER NOT NULL,
  colour INTEGER,
  starbases INTEGER NOT NULL,
  Name, LargePlanets, PlanetsOwned, TotalPopulation, TotalMines, TotalFactories, TotalResources,
  GravMin, GravMax, TempMin, TempMax, RadMin, RadMax, Territory, TotalIron, TotalBora, TotalGerm,
  ColourSlot, GravImmune, TempImmune, RadImmune, PrimaryTrait,
  LesserTrait1, LesserTrait2, LesserTrait3, LesserTrait4, LesserTrait5, LesserTrait6, LesserTrait7,
  LesserTrait8, LesserTrait9, LesserTrait10, LesserTrait11, LesserTrait12, LesserTrait13,
  LesserTrait14, NotesText,
  PRIMARY KEY (year_id, player)
) WITHOUT ROWID;
CREATE TABLE planets (
  year_id INTEGER NOT NULL REFERENCES years (id) ON DELETE CASCADE,
  planet INTEGER NOT NULL,
  Number, X, Y, Name, Owner, Starbase, AgeText, Population, SoiRadius, HabValue REAL, Mines,
  Factories, Resources, DefencePercent, StoredIron, StoredBora, StoredGerm, IronMR, BoraMR, GermMR,
  IronMC, BoraMC, GermMC, ReportAge REAL, TerraValue REAL, ExtraValue REAL, OwnerIndex, InMyReport,
  Gravity, Temperature, Radiation, Gravity2, Temperature2, Radiation2, GateRange REAL,
  ScanRange REAL, PenScanRange REAL, ScoreValue, GateMass REAL,
  PRIMARY KEY (year_id, planet)
) WITHOUT ROWID;
CREATE TABLE drawings (
  year_id INTEGER NOT NULL REFERENCES years (id) ON DELETE CASCADE,
  number INTEGER NOT NULL,
  kind TEXT NOT NULL,
  x INTEGER NOT NULL,
  y INTEGER NOT NULL,
  x2 INTEGER NOT NULL,
  y2 INTEGER NOT NULL,
  radius INTEGER NOT NULL,
  text TEXT NOT NULL,
  size REAL NOT NULL,
  colour INTEGER NOT NULL,
  PRIMARY KEY (year_id, number)
) WITHOUT ROWID;
)";

// What reports say of a planet beyond its fields, in the order of `PlanetExtra`, and which fields
// they leave out. Older years stay without.
constexpr const char* kPlanetExtras = R"(
ALTER TABLE planets ADD COLUMN ProductionQueue;
ALTER TABLE planets ADD COLUMN CapacityUsed;
ALTER TABLE planets ADD COLUMN DriverTarget;
ALTER TABLE planets ADD COLUMN DriverWarp;
ALTER TABLE planets ADD COLUMN Route;
ALTER TABLE planets ADD COLUMN StarbaseDamage;
ALTER TABLE planets ADD COLUMN LeftOut INTEGER;
)";

// What leads from the tables of a version to those of the next; version 0 has none.
constexpr const char* kSteps[] = {kFirstTables, kPlanetExtras};
static_assert(std::size(kSteps) == kTablesVersion);

}  // namespace

int TablesVersion(SQLite::Database& database) {
  return database.execAndGet("PRAGMA user_version").getInt();
}

void MakeTables(SQLite::Database& database) {
  if (TablesVersion(database) == kTablesVersion) return;
  SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
  // Another program may have been faster.
  for (int version = TablesVersion(database); version < kTablesVersion; ++version) {
    database.exec(kSteps[version]);
  }
  database.exec("PRAGMA user_version = " + std::to_string(kTablesVersion));
  transaction.commit();
}

void CheckTables(SQLite::Database& database) {
  for (const char* query :
       {"SELECT id, hash, name, extent FROM games",
        "SELECT id, game, year, own_race, report_style, sphere_setting, loaded FROM years",
        "SELECT year_id, player, colour, starbases, Name, NotesText FROM players",
        "SELECT year_id, planet, Number, GateMass FROM planets",
        "SELECT year_id, number, kind, x, y, x2, y2, radius, text, size, colour FROM drawings"}) {
    const SQLite::Statement statement(database, query);
  }
}

}  // namespace quorvane
