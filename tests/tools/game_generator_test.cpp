#include "generator/game_generator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "analysis/empire_data.h"
#include "analysis/estimated_hab.h"
#include "generator/report_writer.h"
#include "loading/dialog_files.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"
#include "make_game_options.h"
#include "model/text.h"
#include "platform/files/files.h"
#include "support/temp_folder.h"

namespace quorvane::generator {
namespace {

using Fields = std::vector<std::string>;

// The lines behind the heading, cut at every TAB. Every line end must be CR LF.
std::vector<Fields> LinesOf(const std::string& content) {
  EXPECT_TRUE(content.ends_with("\r\n"));
  std::vector<Fields> lines;
  std::string_view rest = content;
  while (!rest.empty()) {
    const std::size_t end = rest.find("\r\n");
    std::string_view line = rest.substr(0, end);
    EXPECT_EQ(line.find_first_of("\r\n"), line.npos) << line;
    rest.remove_prefix(end + 2);
    Fields& fields = lines.emplace_back();
    for (std::size_t tab; (tab = line.find('\t')) != line.npos; line.remove_prefix(tab + 1)) {
      fields.emplace_back(line.substr(0, tab));
    }
    fields.emplace_back(line);
  }
  lines.erase(lines.begin());
  return lines;
}

std::vector<Fields> LinesOf(const GeneratedGame& game, std::string_view extension) {
  const std::string* content = game.Content(extension);
  return content != nullptr ? LinesOf(*content) : std::vector<Fields>();
}

std::string AllBytes(const GeneratedGame& game) {
  std::string bytes;
  for (const GeneratedFile& file : game.Files) bytes += file.Extension + "\n" + file.Content;
  return bytes;
}

bool IsOwn(const Fields& line) { return line.size() == 36; }

TEST(GenerateGame, GivesTheSameBytesForTheSameSeedOnly) {
  const GameShape shape = {.HasCompanions = true};
  GameShape otherSeed = shape;
  otherSeed.Seed = 2;
  EXPECT_EQ(AllBytes(GenerateGame(shape)), AllBytes(GenerateGame(shape)));
  EXPECT_NE(AllBytes(GenerateGame(shape)), AllBytes(GenerateGame(otherSeed)));
}

TEST(GenerateGame, TellsTheSameStoryHoweverManyReportsAreWritten) {
  const GeneratedGame few = GenerateGame({.ReportCount = 2});
  const GeneratedGame many = GenerateGame({.ReportCount = 8});
  EXPECT_EQ(*few.Content(".map"), *many.Content(".map"));
  EXPECT_EQ(*few.Content(".p2"), *many.Content(".p2"));
}

TEST(GenerateGame, MapIsNumberedSortedAndWithinItsUniverse) {
  const std::pair<int, int> cases[] = {{400, 24}, {800, 130}, {3200, 965}, {400, 3000}};
  for (const auto& [side, count] : cases) {
    const GeneratedGame game = GenerateGame({.Side = side, .PlanetCount = count});
    EXPECT_TRUE(game.Content(".map")->starts_with("#\tX\tY\tName\r\n"));
    std::set<std::string> names;
    int number = 0;
    int lastX = 0;
    for (const Fields& line : LinesOf(game, ".map")) {
      ASSERT_EQ(line.size(), 4U);
      EXPECT_EQ(line[0], std::to_string(++number));
      const int x = std::stoi(line[1]);
      const int y = std::stoi(line[2]);
      EXPECT_GE(x, std::max(lastX, 1010));
      EXPECT_LE(std::max(x, y), side + 990);
      EXPECT_GE(y, 1010);
      EXPECT_TRUE(names.insert(line[3]).second) << line[3];
      EXPECT_LE(line[3].size(), 18U);
      EXPECT_TRUE(std::ranges::all_of(line[3], [](char c) { return c >= ' ' && c <= '~'; }));
      lastX = x;
    }
    EXPECT_EQ(number, count);
    for (const char* name : {"007", "90210", "3M TA3", "O'Dell's Landing", "Ever-After"}) {
      EXPECT_EQ(names.count(name), 1U) << name;
    }
  }
}

TEST(GenerateGame, NewStyleLinesHaveTheGamesShape) {
  const GeneratedGame game = GenerateGame({.ReportCount = 8});
  std::set<std::string> planets;
  for (const Fields& line : LinesOf(game, ".map")) planets.insert(line[3]);
  for (int slot = 1; slot <= 8; ++slot) {
    const std::vector<Fields> lines = LinesOf(game, ".p" + std::to_string(slot));
    std::set<std::string> listed, ages;
    for (const Fields& line : lines) {
      ages.insert(line[3]);
      EXPECT_LE(NumericValue(line[9]), 98) << "no planet's defences are perfect";
      EXPECT_LE(std::abs(NumericValue(line[21])), 196);
      EXPECT_TRUE(planets.contains(line[0]) && listed.insert(line[0]).second) << line[0];
      const std::string& defences = line[9];
      if (IsOwn(line)) {
        EXPECT_EQ(line[3], "0");
        EXPECT_EQ(line[35], "0");
        EXPECT_EQ(defences.find('.') + 4, defences.size()) << defences;
        EXPECT_TRUE(
            line[21].ends_with("\xBA"
                               "C"))
            << line[21];
        continue;
      }
      ASSERT_EQ(line.size(), 27U);
      EXPECT_EQ(defences.find('.'), defences.npos);
      const bool isOnlySighted = line[5].empty();
      EXPECT_EQ(isOnlySighted, !line[26].ends_with('%'));
      EXPECT_TRUE(!isOnlySighted || (!line[1].empty() && line[4].empty())) << line[0];
      EXPECT_TRUE(line[13] != "-1" || line[1].empty()) << "mined remotely, yet inhabited";
    }
    EXPECT_TRUE(std::ranges::any_of(lines, IsOwn));
    EXPECT_LT(lines.size(), planets.size()) << "everything is known";
    EXPECT_GE(ages.size(), 5U);
  }
}

TEST(GenerateGame, OldStyleIsOneReportOfTwentyColumns) {
  const GeneratedGame game = GenerateGame({.OwnSlot = 3, .Style = kOldReportStyle});
  EXPECT_EQ(game.Content(".p1"), nullptr);
  EXPECT_EQ(game.ReportYears, std::vector<int>{2450});
  const std::vector<Fields> lines = LinesOf(game, ".pla");
  for (const Fields& line : lines) EXPECT_EQ(line.size(), 20U);
  EXPECT_TRUE(std::ranges::any_of(lines, [](const Fields& line) { return !line[19].empty(); }));
}

TEST(GenerateGame, ReportsOfDifferentAgesDisagreeAboutOwnersAndInhabitants) {
  const GeneratedGame game = GenerateGame({.ReportCount = 8, .OwnSlot = 2});
  EXPECT_EQ(game.ReportYears.at(1), 2450);
  EXPECT_GE(*std::ranges::min_element(game.ReportYears), 2444);
  EXPECT_LE(*std::ranges::max_element(game.ReportYears), 2450);
  std::map<std::string, std::set<std::string>> owners, populations;
  for (int slot = 1; slot <= 8; ++slot) {
    for (const Fields& line : LinesOf(game, ".p" + std::to_string(slot))) {
      owners[line[0]].insert(line[1]);
      if (!line[4].empty()) populations[line[0]].insert(line[4]);
    }
  }
  const auto isDisputed = [](const auto& entry) { return entry.second.size() > 1; };
  EXPECT_GE(std::ranges::count_if(owners, isDisputed), 5);
  EXPECT_GE(std::ranges::count_if(populations, isDisputed), 20);
  // A planet that changed hands: two owners, neither of them nobody.
  EXPECT_TRUE(std::ranges::any_of(owners, [](const auto& entry) {
    return entry.second.size() > 1 && !entry.second.contains("");
  }));
}

// The session of one race with the ranges that the empire data file has for it, and one planet.
GameSession SessionFor(const std::string& race, const GeneratedGame& game) {
  GameSession session;
  session.CreatePlanetTable(1);
  session.CreatePlayerTable();
  session.PlayerCount = 1;
  session.Player(1)[PlayerField::Name] = race;
  ApplyEmpireData(*game.Content(".QVD"), session);
  return session;
}

TEST(GenerateGame, ValuesFollowFromTheRacesRangesAndColoniesLieWithinThem) {
  const GeneratedGame game = GenerateGame({.ReportCount = 8, .HasCompanions = true});
  for (int slot = 1; slot <= 8; ++slot) {
    const std::vector<Fields> lines = LinesOf(game, ".p" + std::to_string(slot));
    const std::string owner = DecodeText(std::ranges::find_if(lines, IsOwn)->at(1));
    GameSession session = SessionFor(owner, game);
    int colonies = 0;
    int hostile = 0;
    for (const Fields& line : lines) {
      if (line[20].empty()) continue;
      for (std::size_t kind = 0; kind < 3; ++kind) {
        const auto gravity = static_cast<std::size_t>(PlanetField::Gravity);
        session.Planet(1).Field(gravity + kind) = line[20 + kind];
      }
      const double value = NumericValue(line[5]);
      EXPECT_NEAR(EstimatedHab(session, 1, 1), value, 6) << owner << " on " << line[0];
      EXPECT_GE(NumericValue(line[26]), value) << "terraforming makes nothing worse";
      colonies += IsOwn(line) ? 1 : 0;
      hostile += IsOwn(line) && value < 0 ? 1 : 0;
    }
    EXPECT_LE(hostile * 3, colonies) << owner;
  }
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
  EXPECT_EQ(years->at(6), "");
  choice.GameYear = game.Year;
  choice.MyRaceRow = LoadRememberedRace(choice.RememberedRaceFilePath).value_or(0);
  EXPECT_EQ(choice.MyRaceRow, 2);
  const Result<GameSession> session = LoadGame(choice, "", {});
  ASSERT_TRUE(session) << session.Message();
  EXPECT_EQ(session->PlanetCount, 130);
  EXPECT_EQ(session->PlayerCount, 8);
  EXPECT_FALSE(session->DrawingLayer.empty());
  for (int player = 1; player <= 8; ++player) {
    EXPECT_GT(session->Player(player)[PlayerField::Territory].Number(), 0);
    EXPECT_FALSE(session->Player(player)[PlayerField::PrimaryTrait].Text().empty());
    EXPECT_NE(session->ColourOf(player), nullptr);
  }
}

TEST(GenerateReportsForMap, KeepsTheMapsNamesAndWritesThemInTheGamesEncoding) {
  const MapPlanet map[] = {{1, 1010, 1300, "Zürich 0815"}, {2, 1200, 1011, "0x1F"}};
  const GeneratedGame game =
      GenerateReportsForMap(map, {.PlayerCount = 2, .ReportCount = 2, .Year = 2401});
  EXPECT_EQ(game.Content(".map"), nullptr);
  std::set<std::string> homes;
  for (const char* report : {".p1", ".p2"}) {
    for (const Fields& line : LinesOf(game, report)) {
      if (IsOwn(line)) homes.insert(line[0]);
    }
  }
  EXPECT_EQ(homes, (std::set<std::string>{"Z\xFCrich 0815", "0x1F"}));
  EXPECT_EQ(EncodeForGame("24ºC – 你"),
            "24\xBA"
            "C \x96 你")
      << "no sign of the code page: kept";
}

TEST(CheckShape, RefusesWhatNoGameCanBe) {
  const std::tuple<const char*, GameShape, bool> cases[] = {
      {"smallest side", {.Side = 400}, true},
      {"below it", {.Side = 399}, false},
      {"above the largest side", {.Side = 3201}, false},
      {"a planet for every player", {.PlanetCount = 8}, true},
      {"a player without planet", {.PlanetCount = 7}, false},
      {"planets on one another", {.Side = 400, .PlanetCount = 6401}, false},
      {"seventeen players", {.PlayerCount = 17}, false},
      {"more reports than players", {.PlayerCount = 4, .ReportCount = 5}, false},
      {"no own report", {.ReportCount = 3, .OwnSlot = 4}, false},
      {"own player of an old game",
       {.ReportCount = 1, .OwnSlot = 8, .Style = kOldReportStyle},
       true},
      {"before the first turn", {.Year = 2400}, false}};
  for (const auto& [what, shape, isPossible] : cases) {
    EXPECT_EQ(static_cast<bool>(CheckShape(shape)), isPossible) << what;
  }
}

TEST(ParseMakeGameOptions, SaysWhatIsWrong) {
  const std::pair<Fields, const char*> cases[] = {
      {{"--planet", "5"}, "There is no option --planet."},
      {{"--planets"}, "--planets needs a value."},
      {{"--planets", "12x"}, "--planets needs a whole number, not \"12x\"."},
      {{"--seed", "-1"}, "--seed needs a whole number, not \"-1\"."},
      {{"--style", "modern"}, "--style is new or old, not \"modern\"."},
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
  EXPECT_EQ(options->Folder, "games");
  EXPECT_EQ(options->BaseName, "Demo");
  EXPECT_EQ(options->Shape.ReportCount, 3);
  EXPECT_EQ(ParseMakeGameOptions({"--map", "a.map", "--out", "x"})->Folder, "x");
}

// The words of a command line, texts between double quotes being one word.
Fields WordsOf(std::string_view command) {
  Fields words;
  bool isQuoted = false;
  bool isInWord = false;
  for (const char c : command) {
    if (c == '"') isQuoted = !isQuoted;
    const bool isBreak = c == ' ' && !isQuoted;
    if (!isBreak && !isInWord) words.emplace_back();
    if (!isBreak && c != '"') words.back() += c;
    isInWord = !isBreak;
  }
  return words;
}

TEST(Examples, AreWhatTheCommandsInTheirReadmeMake) {
  const std::filesystem::path folder = PathFromText(QUORVANE_EXAMPLES_DIR);
  const Result<std::string> readme = ReadTextFile(folder / "README.md");
  ASSERT_TRUE(readme) << readme.Message();
  constexpr std::string_view kCommand = "    quorvane-make-game ";
  int games = 0;
  for (std::string_view rest = *readme; !rest.empty();) {
    const std::string_view line = TakeLine(rest);
    if (!line.starts_with(kCommand)) continue;
    const auto options = ParseMakeGameOptions(WordsOf(line.substr(kCommand.size())));
    ASSERT_TRUE(options) << options.Message();
    for (const GeneratedFile& file : GenerateGame(options->Shape).Files) {
      const Result<std::string> kept =
          ReadTextFile(folder / PathFromText(options->BaseName + file.Extension));
      EXPECT_EQ(kept ? *kept : kept.Message(), DecodeText(file.Content)) << file.Extension;
    }
    ++games;
  }
  EXPECT_EQ(games, 2);
}

}  // namespace
}  // namespace quorvane::generator
