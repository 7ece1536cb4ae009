#include "generator/game_generator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>

#include "formats/dialog_files.h"
#include "formats/game_files.h"
#include "formats/turn_file.h"
#include "generator/report_writer.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"
#include "support/growing_game_folder.h"

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

TEST(GenerateYears, MakesOneGameThatGrows) {
  GrowingGameFolder folder;
  const std::string map = folder.Read("Demo.map");
  std::map<std::string, std::string> owners;
  std::ptrdiff_t owned = 0;
  int taken = 0;
  int left = 0;
  for (int year = 2450; year <= 2460; ++year, folder.WriteNextYear()) {
    GameChoice choice;
    ChooseMap(choice, folder.MapFile());
    FindReportFiles(choice, std::to_string(year), {});
    const Result<GameSession> session = LoadGame(choice, "", {});
    ASSERT_TRUE(session) << session.Message();
    for (const PlanetRecord& planet : session->Planets()) {
      const std::string& owner = planet[PlanetField::Owner].Text();
      std::string& before = owners[planet[PlanetField::Name].Text()];
      taken += !before.empty() && !owner.empty() && owner != before ? 1 : 0;
      left += !before.empty() && owner.empty() ? 1 : 0;
      before = owner;
    }
    const auto free = std::ranges::count(owners, "", [](const auto& of) { return of.second; });
    const std::ptrdiff_t before = std::exchange(owned, std::ssize(owners) - free);
    EXPECT_GT(owned, before) << year;
    EXPECT_EQ(folder.Read("Demo.map"), map) << year;
    for (const char* file : {"Demo.m1", "Demo.m4", "Demo.hst"}) {
      EXPECT_EQ(ReadTurnYear(folder / file), year) << file;
    }
  }
  EXPECT_TRUE(taken > 0 && left > 0 && taken + left < 10) << taken << " taken, " << left << " left";
}

TEST(GenerateYears, AYearIsTheSameHoweverManyAreMade) {
  const GameShape shape = {.Seed = 9, .Year = 2700, .HasCompanions = true, .HasTurnFiles = true};
  const GeneratedGame first = GenerateYears(shape, 1)[0];
  const GeneratedGame again = GenerateYears(shape, 2)[0];
  EXPECT_EQ(TurnYear(*first.Content(".m8")), 2700) << "a turn that needs two bytes";
  EXPECT_TRUE(std::ranges::equal(first.Files, again.Files, {}, &GeneratedFile::Content,
                                 &GeneratedFile::Content));
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
