// The merge of planet reports, value by value against a plain version of it, on many made-up games
// whose reports are as the game writes them and on damaged ones.

#include "reference/plain_merge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "formats/game_files.h"
#include "generator/damage.h"
#include "generator/game_generator.h"
#include "generator/random.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"
#include "support/temp_folder.h"

namespace quorvane {
namespace {

using generator::GameShape;
using generator::GeneratedGame;
using generator::Random;

constexpr int kGames = 40;

constexpr std::string_view kIncluded[] = {"1", "1", "1", " 1", "0", " 0", "-1", "yes"};

GameShape MakeShape(int seed, Random& random) {
  GameShape shape;
  shape.Seed = static_cast<std::uint64_t>(seed);
  shape.Side = 400 * random.Between(1, 2);
  shape.PlanetCount = random.Between(24, 150);
  shape.PlayerCount = random.Between(1, 16);
  shape.Style = random.Chance(25) ? kOldReportStyle : kNewReportStyle;
  shape.ReportCount = shape.Style == kOldReportStyle ? 1 : random.Between(1, shape.PlayerCount);
  shape.OwnSlot = random.Between(1, shape.ReportCount);
  shape.AgeSpread = random.Between(0, 12);
  return shape;
}

void WriteFiles(const GeneratedGame& game, const TempFolder& folder, int damage, Random& random) {
  for (const auto& [extension, content] : game.Files) {
    const bool isMap = extension == ".map";
    std::string text = content;
    if (isMap && damage > 0) text = generator::WithOddNames(content, random);
    if (!isMap && damage > 0) text = generator::DamagedReport(content, damage, random);
    folder.Write("Game" + extension, text);
  }
}

// What a user might choose in the open dialog for that game.
GameChoice MakeChoice(const GeneratedGame& game, const TempFolder& folder, Random& random) {
  GameChoice choice;
  ChooseMap(choice, folder / "Game.map");
  EXPECT_TRUE(FindReportFiles(choice, std::to_string(game.Year), [] { return true; }));
  choice.GameYear = random.Chance(20) ? 0 : game.Year;
  choice.SoiSetting = random.Between(50, 500);
  const auto reports = static_cast<int>(game.ReportYears.size());
  choice.MyRaceRow = random.OneOf(std::array{game.OwnSlot, 0, random.Between(0, reports)});
  for (int row = 1; row <= reports; ++row) {
    ReportFileSlot& slot = choice.ReportFiles[static_cast<std::size_t>(row)];
    const int year = game.ReportYears[static_cast<std::size_t>(row) - 1];
    slot.Year = random.Chance(80) ? std::to_string(year) : random.Chance(50) ? "" : " 2440.5";
    slot.Included = random.OneOf(kIncluded);
  }
  return choice;
}

// Every field that reports decide; owner numbers and scores are computed from them later.
void ExpectSamePlanets(const GameSession& loaded, const GameSession& plain) {
  constexpr auto kOwnerIndex = static_cast<std::size_t>(PlanetField::OwnerIndex);
  constexpr auto kScoreValue = static_cast<std::size_t>(PlanetField::ScoreValue);
  EXPECT_EQ(loaded.MyRaceName, plain.MyRaceName);
  for (int planet = 1; planet <= plain.PlanetCount; ++planet) {
    for (std::size_t field = 1; field <= kPlanetFieldCount; ++field) {
      if (field == kOwnerIndex || field == kScoreValue) continue;
      const FieldValue& is = loaded.Planet(planet).Field(field);
      const FieldValue& mustBe = plain.Planet(planet).Field(field);
      ASSERT_EQ(is, mustBe) << "field " << field << " of planet " << planet << " is "
                            << FieldText(is) << ", must be " << FieldText(mustBe);
    }
  }
}

// Writes a game with so much damage, loads it and compares. @return planets that reports tell of
int CompareMerges(int seed, int damage) {
  Random random(static_cast<std::uint64_t>(seed), "merge " + std::to_string(damage));
  const GeneratedGame game = generator::GenerateGame(MakeShape(seed, random));
  const TempFolder folder;
  WriteFiles(game, folder, damage, random);
  const GameChoice choice = MakeChoice(game, folder, random);
  const std::string myRaceName = random.Chance(50) ? "" : "Somebody";
  const Result<GameSession> loaded = LoadGame(choice, myRaceName, {});
  EXPECT_TRUE(loaded) << loaded.Message();
  if (!loaded) return 0;
  GameSession plain = reference::SessionBeforeReports(*loaded, myRaceName);
  reference::PlainMergeReports(plain);
  ExpectSamePlanets(*loaded, plain);
  return static_cast<int>(std::ranges::count_if(
      plain.PlanetTable, [](const PlanetRecord& planet) { return !planet.AgeText().empty(); }));
}

TEST(ReportMerge, EqualsThePlainMergeOnReportsAsTheGameWritesThemAndOnDamagedOnes) {
  for (const int damage : {0, 3, 10, 30, 60}) {  // percent of the lines
    int reportedPlanets = 0;
    for (int seed = 1; seed <= kGames; ++seed) {
      SCOPED_TRACE("game " + std::to_string(seed) + ", damage " + std::to_string(damage));
      reportedPlanets += CompareMerges(seed, damage);
    }
    EXPECT_GT(reportedPlanets, 20 * kGames);
  }
}

}  // namespace
}  // namespace quorvane
