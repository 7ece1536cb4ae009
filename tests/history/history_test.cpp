#include "history/history.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <random>
#include <thread>

#include "history/game_hash.h"
#include "screens/stored_session.h"
#include "support/growing_game_folder.h"
#include "support/loaded_game.h"

namespace quorvane {
namespace {

using generator::GameShape;

constexpr GameShape kSmallShape = {
    .Seed = 9, .Side = 400, .PlanetCount = 40, .PlayerCount = 3, .ReportCount = 3};
constexpr std::int64_t kLoaded = 1'700'000'000;

class HistoryTest : public testing::Test {
 protected:
  // The history as the next start of the program finds it.
  History Opened() {
    Result<History> history = History::Open(File());
    EXPECT_TRUE(history) << history.Message();
    return std::move(*history);
  }
  static void Keep(History& history, const GameSession& session) {
    const Result<void> stored = history.Store(session, kLoaded);
    EXPECT_TRUE(stored) << stored.Message();
  }
  std::filesystem::path File() const { return folder_ / "data/history.sqlite"; }

  TempFolder folder_;
};

TEST_F(HistoryTest, EveryStoredYearReadsBackAsItWasLoaded) {
  GameShape shapes[] = {{.Seed = 3, .HasCompanions = true}, {.Seed = 4, .HasCompanions = true}};
  shapes[1].Style = kOldReportStyle;
  for (const GameShape& shape : shapes) {
    std::vector<GameSession> loaded;
    for (const generator::GeneratedGame& game : generator::GenerateYears(shape, 3)) {
      const TempFolder folder;
      loaded.push_back(LoadGenerated(folder, game, 130));
      History history = Opened();
      Keep(history, loaded.back());
    }
    EXPECT_FALSE(loaded.front().DrawingLayer.empty());
    const Result<History> history = History::OpenToRead(File());
    ASSERT_TRUE(history) << history.Message();
    for (const GameSession& session : loaded) {
      const auto read = SessionOfYear(*history, GameHash(session), session.GameYear, session);
      ASSERT_TRUE(read) << read.Message();
      ExpectSameGame(*read, session);
    }
    EXPECT_EQ(history->Years(GameHash(loaded.front()))->size(), loaded.size());
  }
}

TEST_F(HistoryTest, KeepsEveryKindOfValue) {
  const TempFolder folder;
  GameSession session = LoadGenerated(folder, generator::GenerateGame(kSmallShape));
  const FieldValue kValues[] = {{},
                                "",
                                "\"Umlaut ä\", '; DROP TABLE years",
                                "45%",
                                0,
                                -1,
                                1LL << 52,
                                0.1,
                                1e300,
                                12.0,
                                std::string("a\0b", 3)};
  std::size_t planet = 0;
  for (const FieldValue& value : kValues) {
    session.PlanetTable.at(++planet)[PlanetField::Resources] = value;
    session.Player(1).Field(planet + 22) = value;
  }
  session.DrawingLayer = {{.Kind = DrawingKind::Text, .X = -1, .Text = "A, \"B\"", .Size = 8.5}};
  History history = Opened();
  Keep(history, session);
  const auto read = SessionOfYear(history, GameHash(session), session.GameYear, session);
  ASSERT_TRUE(read) << read.Message();
  ExpectSameGame(*read, session);
}

TEST_F(HistoryTest, AYearLoadedAgainReplacesTheOneBefore) {
  const TempFolder folder;
  GameSession session = LoadGenerated(folder, generator::GenerateGame(kSmallShape));
  History history = Opened();
  Keep(history, session);
  session.Planet(1)[PlanetField::Population] = 777;
  session.MapFilePath = folder / "Other.map";
  Keep(history, session);
  const std::string game = GameHash(session);
  const std::vector<StoredYear> kOne = {
      {session.GameYear, session.MyRaceName, kNewReportStyle, session.SoiSetting, kLoaded}};
  EXPECT_EQ(*history.Years(game), kOne);
  EXPECT_EQ(history.ReadYear(game, session.GameYear)->Planet(1).Population(), 777);
  EXPECT_EQ(history.Years("another")->size(), 0U);
  EXPECT_FALSE(history.ReadYear(game, session.GameYear + 1));

  session.GameYear = 0;
  EXPECT_EQ(history.Store(session, kLoaded).Message(), "A game without a year is not kept");
  EXPECT_TRUE(history.Forget(game));
  EXPECT_EQ(history.Years(game)->size(), 0U);
  SQLite::Database database(File().string());
  EXPECT_EQ(database.execAndGet("SELECT count(*) FROM planets").getInt(), 0);
}

TEST_F(HistoryTest, TellsOfEachRaceWhatItsSessionsSay) {
  GrowingGameFolder game;
  std::vector<RaceYear> expected;
  std::string hash;
  for (int year = 0; year < 3; ++year) {
    const GameSession session = LoadGenerated(game, game.Game());
    hash = GameHash(session);
    History history = Opened();
    Keep(history, session);
    for (int number = 1; number <= session.PlayerCount; ++number) {
      RaceYear sums = {session.GameYear, session.Player(number).Name(), *session.ColourOf(number)};
      for (const PlanetRecord& planet : session.Planets()) {
        if (planet.Owner() != sums.Race) continue;
        sums.Planets += 1;
        sums.Population += planet.Population();
        sums.Resources += planet[PlanetField::Resources].Number();
        if (planet.HasStarbase()) sums.Starbases += 1;
      }
      sums.Territory = session.Player(number)[PlayerField::Territory].Number();
      sums.Minerals = session.Player(number)[PlayerField::TotalIron].Number() +
                      session.Player(number)[PlayerField::TotalBora].Number() +
                      session.Player(number)[PlayerField::TotalGerm].Number();
      expected.push_back(sums);
    }
    game.BeginNextYear();
  }
  EXPECT_EQ(*Opened().RaceYears(hash), expected);
}

TEST_F(HistoryTest, TwoProgramsAtOnceLoseNothing) {
  const TempFolder folder;
  const GameSession session = LoadGenerated(folder, generator::GenerateGame(kSmallShape));
  constexpr int kYearsEach = 20;
  const auto keepYears = [&](int first) {
    History history = Opened();
    GameSession own = session;
    for (own.GameYear = first; own.GameYear < first + kYearsEach; ++own.GameYear) {
      Keep(history, own);
    }
  };
  std::thread other(keepYears, 2400);
  keepYears(2500);
  other.join();
  EXPECT_EQ(Opened().Years(GameHash(session))->size(), 2U * kYearsEach);
}

TEST_F(HistoryTest, WhatItCannotReadIsNeverLost) {
  const TempFolder folder;
  const GameSession session = LoadGenerated(folder, generator::GenerateGame(kSmallShape));
  std::filesystem::create_directories(File().parent_path());
  for (const std::string kept : {"", "-2"}) {
    const std::string bytes = "no database at all" + kept;
    folder_.Write("data/history.sqlite", bytes);
    History history = Opened();
    const std::string name = "data/history.sqlite.damaged" + kept;
    EXPECT_EQ(folder_.Read(name), bytes);
    EXPECT_EQ(history.Notice().Details,
              "The history was damaged; the file is kept as " + (folder_ / name).string());
    Keep(history, session);
  }
}

// Bytes turned over and ends cut off, as broken disks and crashed systems leave them.
TEST_F(HistoryTest, DamageNeverCrashesAndNeverLosesTheFile) {
  const TempFolder folder;
  const GameSession session = LoadGenerated(folder, generator::GenerateGame(kSmallShape));
  {
    History history = Opened();
    Keep(history, session);
  }
  const std::string whole = folder_.Read("data/history.sqlite");
  std::mt19937 random(3);
  int readable = 0;
  for (int number = 0; number < 80; ++number) {
    std::string damaged = whole;
    for (int flips = number % 4; flips > 0; --flips) {
      const std::size_t reach = number % 8 < 4 ? 200 : damaged.size();
      damaged[random() % reach] ^= static_cast<char>(1 + random() % 255);
    }
    if (number % 4 == 0) damaged.resize(random() % damaged.size());
    std::filesystem::remove_all(File().parent_path());
    std::filesystem::create_directories(File().parent_path());
    folder_.Write("data/history.sqlite", damaged);
    Result<History> history = History::Open(File());
    if (!history) continue;  // told, and the file is where it was
    if (history->Notice().Words == "History was damaged") {
      EXPECT_EQ(folder_.Read("data/history.sqlite.damaged"), damaged) << number;
      Keep(*history, session);
    }
    const auto read = SessionOfYear(*history, GameHash(session), session.GameYear, session);
    EXPECT_TRUE(!read || read->PlanetCount == session.PlanetCount);
    if (read) ++readable;
  }
  EXPECT_GT(readable, 40);
}

TEST_F(HistoryTest, AnOlderVersionIsBroughtUpToDateAndItsYearsStay) {
  const TempFolder folder;
  GameSession session = LoadGenerated(folder, generator::GenerateGame(kSmallShape));
  {
    History history = Opened();
    Keep(history, session);
  }
  {
    SQLite::Database database(File().string(), SQLite::OPEN_READWRITE);
    for (const char* column : {"ProductionQueue", "CapacityUsed", "DriverTarget", "DriverWarp",
                               "Route", "StarbaseDamage", "LeftOut"}) {
      database.exec(std::string("ALTER TABLE planets DROP COLUMN ") + column);
    }
    database.exec("PRAGMA user_version = 1");
  }
  const Result<History> reader = History::OpenToRead(File());
  ASSERT_TRUE(reader && reader->ReadYear(GameHash(session), session.GameYear));
  History history = Opened();
  const auto read = history.ReadYear(GameHash(session), session.GameYear);
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->Planet(1)[PlanetExtra::CapacityUsed].IsEmpty());
  EXPECT_EQ(read->Planet(1).Name(), session.Planet(1).Name());
  ++session.GameYear;
  Keep(history, session);
  EXPECT_TRUE(history.ReadYear(GameHash(session), session.GameYear)->PlanetTable ==
              session.PlanetTable);
}

TEST_F(HistoryTest, ANewerVersionIsOnlyRead) {
  const TempFolder folder;
  GameSession session = LoadGenerated(folder, generator::GenerateGame(kSmallShape));
  {
    History history = Opened();
    Keep(history, session);
  }
  SQLite::Database(File().string(), SQLite::OPEN_READWRITE).exec("PRAGMA user_version = 3");
  History history = Opened();
  EXPECT_FALSE(history.IsWritable());
  EXPECT_EQ(history.Notice().Words, "History of a newer version");
  EXPECT_TRUE(history.ReadYear(GameHash(session), session.GameYear));
  session.GameYear = 2300;
  EXPECT_FALSE(history.Store(session, kLoaded));
  EXPECT_FALSE(history.Forget(GameHash(session)));
}

}  // namespace
}  // namespace quorvane
