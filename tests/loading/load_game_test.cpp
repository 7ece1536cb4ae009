#include "loading/load_game.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

#include "loading/drawing_file.h"
#include "loading/open_checks.h"
#include "loading/report_finder.h"
#include "platform/files/files.h"
#include "support/game_folder.h"

namespace quorvane {
namespace {

using Texts = std::vector<std::string>;

template <typename Record, typename Field>
Texts TextsOf(const Record& record, std::initializer_list<Field> fields) {
  Texts texts;
  for (const Field field : fields) texts.push_back(FieldText(record[field]));
  return texts;
}

class LoadGameTest : public testing::Test {
 protected:
  GameSession Load(const std::string& year = "2450", const std::string& map = "Demo.MAP") {
    ChooseMap(choice, folder / map);
    FindReportFiles(choice, year, [] { return true; });
    EXPECT_EQ(AcceptOpenInput(choice, {.Soi = "100", .GameYear = year, .Years = {}}),
              OpenProblem());
    const Result<GameSession> loaded = LoadGame(choice, "", {});
    EXPECT_TRUE(loaded) << loaded.Message();
    return loaded ? *loaded : GameSession();
  }

  GameFolder folder;
  GameChoice choice;
};

TEST_F(LoadGameTest, MergesTheReportsIntoOneGame) {
  const GameSession loaded = Load();
  EXPECT_EQ(loaded.UniverseExtent, 1400);
  EXPECT_EQ(loaded.GridSize, 650);
  EXPECT_EQ(loaded.MyRaceName, "Humanoid");
  EXPECT_EQ(loaded.PlayerCount, 2);
  using Field = PlanetField;
  EXPECT_EQ(TextsOf(loaded.Planet(1), {Field::X, Field::Y, Field::SoiRadius, Field::GateRange,
                                       Field::TerraValue, Field::ScoreValue}),
            (Texts{"50", "100", "81", "300", "97", "39"}));
  EXPECT_EQ(TextsOf(loaded.Planet(2), {Field::IronMR, Field::Starbase}), (Texts{"Remote", "None"}));
  EXPECT_EQ(TextsOf(loaded.Planet(3), {Field::AgeText, Field::GateMass, Field::ScanRange,
                                       Field::InMyReport, Field::OwnerIndex}),
            (Texts{"Current", "10000", "0", "1", "2"}));
  EXPECT_EQ(TextsOf(loaded.Planet(4), {Field::AgeText, Field::ScoreValue}), (Texts{"", "3"}));
}

TEST_F(LoadGameTest, StopsWhereverTheUserAsksForIt) {
  Load();
  int questions = 0;
  const auto ask = [&] { return questions-- == 0; };
  int stops = 0;
  for (bool isStopped = true; isStopped; ++stops) {
    questions = stops;
    const Result<GameSession> loaded = LoadGame(choice, "", {.ShowValue = {}, .AskStopped = ask});
    isStopped = !loaded;
    EXPECT_EQ(loaded.Message(), isStopped ? kLoadingStopped : "") << stops;
  }
  EXPECT_GT(stops, 60);
}

TEST_F(LoadGameTest, CountsAndEstimatesEveryPlayer) {
  using Field = PlayerField;
  const GameSession loaded = Load();
  EXPECT_EQ(
      TextsOf(loaded.Player(1),
              {Field::LargePlanets, Field::PlanetsOwned, Field::TotalPopulation, Field::TotalMines,
               Field::TotalIron, Field::ColourSlot, Field::GravMin, Field::GravMax, Field::TempMin,
               Field::RadMax, Field::GravImmune, Field::PrimaryTrait, Field::Territory}),
      (Texts{"2", "2", "1150000", "410", "1.215", "1", "1.12", "1.5", "-20", "60", "0", "",
             "54514"}));
}

TEST_F(LoadGameTest, AppliesTheCompanionFiles) {
  folder.Write("demo.qvc", "\"Drask\",1,10,20,30\r\n");
  folder.Write("Demo.QVL", "C , 1100, 1200, 50, 3\r\n");
  folder.Write("Demo.QVD",
               "\"Humanoid\"\n.5\n2\n-9\n9\n1\n99\n1\n0\n0\n\"HE\"\n"
               "1\n1\n1\n1\n1\n1\n1\n1\n1\n1\n1\n1\n1\n1\n\"a note\"\n");
  const GameSession loaded = Load();
  EXPECT_EQ(loaded.Player(1).ColourSlot(), 2);
  EXPECT_EQ(*loaded.ColourOf(2), (Colour{10, 20, 30}));
  EXPECT_EQ(DrawingLayerText(loaded.DrawingLayer), "C,1100,1200,50,3\r\n");
  EXPECT_EQ(loaded.Player(1)[PlayerField::GravMin], FieldValue(0.5));
  EXPECT_EQ(FieldText(loaded.Player(1)[PlayerField::NotesText]), "a note");
}

TEST_F(LoadGameTest, LeavesTheNewStyleFieldsOfAnOldGameEmpty) {
  folder.AddOldReport();
  std::filesystem::remove(folder / "Demo.P1");
  std::filesystem::remove(folder / "Demo.P3");
  const GameSession loaded = Load("");
  EXPECT_TRUE(loaded.Planet(1)[PlanetField::GateRange].IsEmpty());
  EXPECT_TRUE(loaded.Planet(1)[PlanetField::Resources].IsEmpty());  // no TAB closes that column
  EXPECT_TRUE(loaded.Player(1)[PlayerField::GravImmune].IsEmpty());
  EXPECT_EQ(loaded.MyRaceName, "");
  EXPECT_EQ(loaded.Player(1)[PlayerField::Territory].Kind(), FieldKind::Whole);
}

TEST_F(LoadGameTest, HoldsSixteenRacesAndNamesTheOthers) {
  for (const auto& [owners, left] : {std::pair(16, 0U), {17, 1U}, {40, 24U}}) {
    std::string map = "heading\n";
    std::string report = map;
    for (int i = 1; i <= 2 * owners; ++i) {  // every owner has two planets
      const std::string number = std::to_string(i);
      map += number + " 1100 1100 P" + number + "\n";
      report += "P" + number + "\tR" + std::to_string(i % owners) + "\tDock\t0\t100000\t\n";
    }
    folder.Write("Demo.MAP", map);
    folder.Write("Demo.P1", report);
    const GameSession loaded = Load();
    EXPECT_EQ(loaded.PlayerCount, 16);
    EXPECT_EQ(loaded.OwnersWithoutRecord.size(), left);
    EXPECT_EQ(loaded.Planet(17).OwnerIndex(), left > 0 ? 0 : 1);
  }
}

TEST_F(LoadGameTest, FindsAGameOfAnyNameBehindALinkAmongAThousandOtherFiles) {
  for (const std::string name : {"My Game", "Größe & Würde", "a, b; c", "[x](y){z}", "  "}) {
    for (int i = 17; i < 217; ++i) folder.Write(name + ".P" + std::to_string(i), "other");
    std::error_code hasNoLinks;
    std::filesystem::create_symlink(folder / "Demo.MAP", folder / (name + ".MAP"), hasNoLinks);
    if (hasNoLinks) folder.Write(name + ".MAP", folder.Read("Demo.MAP"));
    folder.Write(name + ".P3", folder.Read("Demo.P3"));
    EXPECT_EQ(Load("", name + ".MAP").Planet(1).Population(), 100) << name;
  }
}

// Each of these would take hours, or all memory, if work or copies grew with the square of a size.
TEST_F(LoadGameTest, TakesSecondsWhenFilesAreAsLargeAsTheyMayBe) {
  std::string map = "heading\n";
  std::string report = map + "A\t" + std::string(kLargestTextFile / 2, 'x') + "\t\nA\tR\t\n";
  for (int i = 0; i < 20000; ++i) map += "1 1200 1200 A\n";
  while (report.size() < kLargestTextFile - 3) report += "A\t\n";
  folder.Write("Demo.MAP", map);
  folder.Write("Demo.P1", report);
  for (const char* companion : {"Demo.QVC", "Demo.QVD", "Demo.QVL"}) {
    folder.Write(companion, std::string(kLargestTextFile - 1, '\n') + '\0');
  }
  EXPECT_EQ(Load().Planet(20000)[PlanetField::InMyReport], FieldValue(1));
}

TEST_F(LoadGameTest, NamesTheFileThatCannotBeUsed) {
  const std::tuple<const char*, std::string, const char*> faults[] = {
      {"Demo.MAP", "#\n1\tx\t2\tAlpha\n", "Demo.MAP, line 2: X is no number"},
      {"Demo.P3", "", "Demo.P3, line 1: the heading of a planet report"},
      {"Demo.P1", std::string("a\nb\0", 4), "Demo.P1, line 2: this is no text file"},
      {"Demo.P1", "gone", "Demo.P1: there is no such file"}};
  for (const auto& [file, content, message] : faults) {
    const GameFolder fresh;
    fresh.Write(file, content);
    ChooseMap(choice, fresh / "Demo.MAP");
    FindReportFiles(choice, "", [] { return true; });
    if (content == "gone") std::filesystem::remove(fresh / file);
    const Result<GameSession> loaded = LoadGame(choice, "", {});
    ASSERT_FALSE(loaded) << message;
    EXPECT_NE(loaded.Message().find(message), std::string::npos) << loaded.Message();
  }
}

TEST(MainCaption, NamesTheMapAndNoUnknownYear) {
  EXPECT_EQ(MainCaption("1.6.8", nullptr), "Quorvane for Stars!   Version 1.6.8");
  GameChoice choice;
  ChooseMap(choice, std::filesystem::path("folder") / "Demo.MAP");
  EXPECT_EQ(MainCaption("1.6.8", &choice), "Quorvane for Stars!   Version 1.6.8  { Demo.MAP }");
}

}  // namespace
}  // namespace quorvane
