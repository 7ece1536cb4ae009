#include "generator/game_generator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iomanip>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "files/files.h"
#include "formats/dialog_files.h"
#include "formats/empire_data_file.h"
#include "formats/game_files.h"
#include "generator/report_writer.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"
#include "make_game_options.h"
#include "model/text.h"
#include "rules/estimated_hab.h"
#include "support/game_builder.h"
#include "support/temp_folder.h"

namespace quorvane::generator {
namespace {

using Fields = std::vector<std::string>;

// The lines behind the heading, cut at every TAB. Every line end must be CR LF.
std::vector<Fields> LinesOf(const GeneratedGame& game, const std::string& extension) {
  std::vector<Fields> lines;
  std::istringstream content(*game.Content(extension));
  for (std::string line; std::getline(content, line);) {
    EXPECT_EQ(line.find('\r') + 1, line.size()) << line;
    line.back() = '\t';
    Fields& fields = lines.emplace_back();
    std::istringstream rest(line);
    for (std::string field; std::getline(rest, field, '\t');) fields.push_back(field);
  }
  lines.erase(lines.begin());
  return lines;
}

bool IsOwn(const Fields& line) { return line.size() == 36; }

TEST(GenerateGame, TellsTheSameStoryHoweverManyReportsAreWritten) {
  const GeneratedGame few = GenerateGame({.ReportCount = 2});
  const GeneratedGame many = GenerateGame({.ReportCount = 8});
  EXPECT_EQ(*few.Content(".map"), *many.Content(".map"));
  EXPECT_EQ(*few.Content(".p2"), *many.Content(".p2"));
  EXPECT_NE(*few.Content(".map"), *GenerateGame({.Seed = 2}).Content(".map"));
}

TEST(GenerateGame, MapIsNumberedSortedAndWithinItsUniverse) {
  for (const auto& [side, count] : {std::pair(400, 24), {3200, 965}, {400, 3000}}) {
    std::set<std::string> names;
    int lastX = 1010;
    for (const Fields& line : LinesOf(GenerateGame({.Side = side, .PlanetCount = count}), ".map")) {
      EXPECT_TRUE(names.insert(line.at(3)).second && line[3].size() <= 18) << line[3];
      EXPECT_EQ(line[0], std::to_string(names.size()));
      const int x = std::stoi(line[1]), y = std::stoi(line[2]);
      EXPECT_TRUE(x >= lastX && y >= 1010 && std::max(x, y) <= side + 990) << x << "," << y;
      lastX = x;
    }
    EXPECT_EQ(names.size(), count);
    EXPECT_TRUE(names.contains("007")) << "a name that looks like a number";
  }
}

TEST(GenerateGame, ReportsFollowFromTheirRacesRangesAndDisagreeAboutOwners) {
  const GeneratedGame game = GenerateGame({.ReportCount = 8, .HasCompanions = true});
  std::map<std::string, std::set<std::string>> owners;
  for (int slot = 1; slot <= 8; ++slot) {
    const std::vector<Fields> lines = LinesOf(game, ".p" + std::to_string(slot));
    const std::string author = DecodeText(std::ranges::find_if(lines, IsOwn)->at(1));
    GameSession session = GameBuilder().Planet("", {}).OwnedBy(author).Build();
    ApplyEmpireData(*game.Content(".QVD"), session);
    for (const Fields& line : lines) {
      owners[line[0]].insert(line[1]);
      EXPECT_LE(NumericValue(line[9]), 98) << "no planet's defences are perfect";
      EXPECT_EQ(line[9].find('.') != line[9].npos, IsOwn(line)) << line[9];
      EXPECT_TRUE(line[13] != "-1" || line[1].empty()) << "mined remotely, yet inhabited";
      if (line[20].empty()) continue;  // only sighted
      session.Planet(1)[PlanetField::Gravity] = line[20];
      session.Planet(1)[PlanetField::Temperature] = line[21];
      session.Planet(1)[PlanetField::Radiation] = line[22];
      const double value = NumericValue(line[5]);
      EXPECT_NEAR(EstimatedHab(session, 1, 1), value, 6) << author << " on " << line[0];
      EXPECT_GE(NumericValue(line[26]), value) << "terraforming makes nothing worse";
    }
  }
  const auto isDisputed = [](const auto& planet) { return planet.second.size() > 1; };
  EXPECT_GE(std::ranges::count_if(owners, isDisputed), 5);
}

TEST(WriteGame, WritesAGameThatLoadsWithAllItsEmpiresAndCompanions) {
  const TempFolder folder;
  const GeneratedGame game = GenerateGame({.OwnSlot = 2, .HasCompanions = true});
  ASSERT_TRUE(WriteGame(game, folder / "new folder", "Two Words"));
  GameChoice choice;
  ChooseMap(choice, folder / "new folder/Two Words.map");
  ASSERT_TRUE(FindReportFiles(choice, "2450", {}));
  const auto years = LoadYearsFile(choice.YearsFilePath);
  for (std::size_t row = 1; row <= 5; ++row) {
    EXPECT_EQ(years->at(row), std::to_string(game.ReportYears.at(row - 1)));
    choice.ReportFiles.at(row).Year = years->at(row);
  }
  choice.GameYear = game.Year;
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
  EXPECT_EQ(LinesOf(game, ".p1").at(0).at(0), "Z\xFCrich 0815");
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

TEST(ParseMakeGameOptions, SaysWhatIsWrong) {
  const std::pair<Fields, const char*> cases[] = {
      {{"--planet", "5"}, "There is no option --planet."},
      {{"--seed"}, "--seed needs a value."},
      {{"--planets", "12x"}, "--planets needs a whole number, not \"12x\"."},
      {{"--style", "old", "--reports", "2"},
       "An old-style game has one report: --reports does not go with it."},
      {{"--map", "a.map", "--size", "400"},
       "The map says how large the universe is: --size and --planets do not go with it."}};
  for (const auto& [arguments, message] : cases) {
    EXPECT_EQ(ParseMakeGameOptions(arguments).Message(), message);
  }
}

TEST(ParseMakeGameOptions, ReportsGoBesideTheirMapUnlessToldOtherwise) {
  const auto options = ParseMakeGameOptions({"--map", "games/Demo.MAP", "--players", "3"});
  EXPECT_EQ(options->Folder / options->BaseName, "games/Demo");
  EXPECT_EQ(options->Shape.ReportCount, 3);
  EXPECT_EQ(ParseMakeGameOptions({"--map", "a.map", "--out", "x"})->Folder, "x");
}

TEST(Examples, AreWhatTheCommandsInTheirReadmeMake) {
  const std::filesystem::path folder = PathFromText(QUORVANE_EXAMPLES_DIR);
  const Result<std::string> readme = ReadTextFile(folder / "README.md");
  ASSERT_TRUE(readme) << readme.Message();
  std::istringstream text(*readme);
  int games = 0;
  for (std::string line, word; std::getline(text, line);) {
    std::istringstream command(line);
    if (!(command >> word) || word != "quorvane-make-game") continue;
    Fields arguments;
    while (command >> std::quoted(word)) arguments.push_back(word);
    const auto options = ParseMakeGameOptions(arguments);
    ASSERT_TRUE(options) << options.Message();
    for (const GeneratedFile& file : GenerateGame(options->Shape).Files) {
      const auto kept = ReadTextFile(folder / PathFromText(options->BaseName + file.Extension));
      EXPECT_EQ(kept ? *kept : kept.Message(), DecodeText(file.Content)) << file.Extension;
    }
    ++games;
  }
  EXPECT_EQ(games, 2);
}

}  // namespace
}  // namespace quorvane::generator
