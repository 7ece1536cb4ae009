#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <random>
#include <set>

#include "history/game_hash.h"
#include "map/overlay_sets.h"
#include "map/overlay_stack.h"
#include "paint/picture_surface.h"
#include "screens/stored_session.h"
#include "support/loaded_game.h"

namespace quorvane {
namespace {

constexpr int kYears = 60;
constexpr generator::GameShape kWar = {.Seed = 11,
                                       .Side = 600,
                                       .PlanetCount = 120,
                                       .PlayerCount = 6,
                                       .ReportCount = 6,
                                       .AgeSpread = 3,
                                       .HasCompanions = true,
                                       .IsWar = true};

QImage PictureOf(const GameSession& session) {
  PictureSurface map(QSize(300, 300));
  PictureSurface twin(QSize(300, 300));
  MapState state = FirstMapState(session);
  OverlaySwitches switches;
  for (const OverlayKind each : {OverlayKind::InfluenceBorders, OverlayKind::OwnedPlanets,
                                 OverlayKind::QvlDrawing, OverlayKind::NamesColoured}) {
    switches.Set(each, true);
  }
  const Progress progress;
  DrawOverlayStack({session, state, switches, map, twin, progress, session.DrawingLayer});
  return map.Picture();
}

// All years of a war, each from a folder with the reports of that year alone.
class WarTest : public testing::Test {
 protected:
  WarTest() {
    for (const generator::GeneratedGame& game : generator::GenerateYears(kWar, kYears)) {
      const TempFolder thatYear;
      years.push_back(LoadGenerated(thatYear, game));
      pictures.push_back(PictureOf(years.back()));
    }
  }

  // A program that loads one year after the other, and is killed somewhere in between.
  void StoreUntilKilled(std::size_t first, useconds_t after) {
    const pid_t child = fork();
    if (child == 0) {
      Result<History> history = History::Open(file);
      for (std::size_t year = first; history; year = (year + 1) % years.size()) {
        static_cast<void>(history->Store(years[year], 0));
      }
      _exit(0);
    }
    usleep(after);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
  }

  TempFolder folder;
  const std::filesystem::path file = folder / "history.sqlite";
  std::vector<GameSession> years;
  std::vector<QImage> pictures;
};

TEST_F(WarTest, EveryYearIsWholeOrNotThereHoweverOftenTheProgramIsKilled) {
  const std::string game = GameHash(years.front());
  std::mt19937 random(1);
  std::size_t stored = 0;
  for (int kills = 0; kills < 30; ++kills) {
    StoreUntilKilled(stored % years.size(), static_cast<useconds_t>(random() % 60'000));
    Result<History> history = History::Open(file);
    ASSERT_TRUE(history) << history.Message();
    ASSERT_EQ(history->Notice().Details, "");
    GameSession room;
    const auto kept = history->Years(game);
    ASSERT_TRUE(kept) << kept.Message();
    stored = kept->size();
    for (int sample = 0; stored > 0 && sample < 5; ++sample) {
      const int year = kept->at(random() % stored).Year;
      auto read = history->ReadYear(game, year, std::move(room));
      ASSERT_TRUE(read) << read.Message();
      const GameSession& loaded = years.at(static_cast<std::size_t>(year - kWar.Year));
      ASSERT_TRUE(read->PlanetTable == loaded.PlanetTable) << year;
      room = std::move(*read);
    }
  }
  Result<History> history = History::Open(file);
  for (const GameSession& year : years) ASSERT_TRUE(history->Store(year, 0));
  for (std::size_t year = 0; year < years.size(); ++year) {
    const auto read = SessionOfYear(*history, game, years[year].GameYear, years[year]);
    ASSERT_TRUE(read) << read.Message();
    ExpectSameGame(*read, years[year]);
    ASSERT_EQ(PictureOf(*read), pictures[year]) << year;
  }
}

// What makes the game above a test.
TEST_F(WarTest, RacesDieAndPlanetsChangeHands) {
  std::set<std::string> races;
  int quietYears = 0;
  for (std::size_t year = 0; year < years.size(); ++year) {
    for (const PlayerRecord& player : years[year].Players()) races.insert(player.Name());
    const auto isTaken = [&](const PlanetRecord& planet) {
      const auto index = static_cast<std::size_t>(&planet - years[year].PlanetTable.data());
      return year > 0 && years[year - 1].PlanetTable[index].Owner() != planet.Owner();
    };
    if (std::ranges::none_of(years[year].Planets(), isTaken)) ++quietYears;
  }
  EXPECT_LE(years.back().PlayerCount * 3, static_cast<int>(races.size()) * 2);
  EXPECT_LE(quietYears, 5);
}

}  // namespace
}  // namespace quorvane
