#include "generator/game_generator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <tuple>

#include "formats/dialog_files.h"
#include "formats/game_files.h"
#include "generator/report_writer.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"
#include "support/temp_folder.h"

namespace quorvane::generator {
namespace {

TEST(GenerateGame, MapIsNumberedSortedAndWithinItsUniverse) {
  for (const auto& [side, count] : {std::pair(400, 24), {3200, 965}, {400, 3000}}) {
    const GeneratedGame game = GenerateGame({.Side = side, .PlanetCount = count});
    const Result<UniverseMap> map = ParseUniverseMap(*game.Content(".map"), "");
    ASSERT_TRUE(map) << map.Message();
    std::set<std::string> names;
    int lastX = 1010;
    for (const MapPlanet& planet : map->Planets) {
      EXPECT_TRUE(names.insert(planet.Name).second && planet.Name.size() <= 18) << planet.Name;
      EXPECT_EQ(planet.Number, names.size());
      EXPECT_TRUE(planet.X >= lastX && planet.Y >= 1010) << planet.Name;
      EXPECT_LE(std::max(planet.X, planet.Y), side + 990) << planet.Name;
      lastX = planet.X;
    }
    EXPECT_EQ(names.size(), count);
    EXPECT_TRUE(names.contains("007")) << "a name that looks like a number";
  }
}

TEST(WriteGame, WritesAGameThatLoadsWithAllItsEmpiresAndCompanions) {
  const TempFolder folder;
  const GeneratedGame game = GenerateGame({.OwnSlot = 2, .HasCompanions = true});
  ASSERT_TRUE(WriteGame(game, folder / "new folder", "Two Words"));
  GameChoice choice;
  ChooseMap(choice, folder / "new folder/Two Words.map");
  FindReportFiles(choice, "2450", {});
  EXPECT_EQ(LoadYearsFile(choice.YearsFilePath)->at(5), std::to_string(game.ReportYears.at(4)));
  EXPECT_EQ(LoadRememberedRace(choice.RememberedRaceFilePath), 2);
  const Result<GameSession> session = LoadGame(choice, "", {});
  ASSERT_TRUE(session) << session.Message();
  EXPECT_FALSE(session->DrawingLayer.empty());
  for (int player = 1; player <= 8; ++player) {
    EXPECT_GT(session->Player(player)[PlayerField::Territory].Number(), 0);
    EXPECT_FALSE(session->Player(player)[PlayerField::PrimaryTrait].Text().empty());
  }
}

TEST(GenerateReportsForMap, KeepsTheMapsNamesAndWritesThemInTheGamesEncoding) {
  const MapPlanet map[] = {{1, 1010, 1300, "Zürich 0815"}};
  const GeneratedGame game =
      GenerateReportsForMap(map, {.PlayerCount = 1, .ReportCount = 1, .Year = 2401});
  EXPECT_EQ(game.Content(".map"), nullptr);
  EXPECT_NE(game.Content(".p1")->find("\r\nZ\xFCrich 0815\t"), std::string::npos);
  EXPECT_EQ(EncodeForGame("24ºC – 你"), "24\xBA\x43 \x96 你") << "no sign of the code page: kept";
}

TEST(CheckShape, RefusesWhatNoGameCanBe) {
  const std::tuple<const char*, GameShape, bool> cases[] = {
      {"too small", {.Side = 399}, false},
      {"a planet for every player", {.PlanetCount = 8}, true},
      {"a player without planet", {.PlanetCount = 7}, false},
      {"planets on one another", {.Side = 400, .PlanetCount = 6401}, false},
      {"more reports than players", {.PlayerCount = 4, .ReportCount = 5}, false},
      {"no own report", {.ReportCount = 3, .OwnSlot = 4}, false},
      {"the one old report", {.ReportCount = 1, .OwnSlot = 8, .Style = kOldReportStyle}, true},
      {"before the first turn", {.Year = 2400}, false}};
  for (const auto& [what, shape, isPossible] : cases) {
    EXPECT_EQ(static_cast<bool>(CheckShape(shape)), isPossible) << what;
  }
}

}  // namespace
}  // namespace quorvane::generator
