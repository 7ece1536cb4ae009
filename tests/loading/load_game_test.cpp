#include "loading/load_game.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

#include "loading/open_checks.h"
#include "loading/report_finder.h"
#include "platform/files/files.h"
#include "support/game_folder.h"

namespace quorvane {
namespace {

class LoadGameTest : public testing::Test {
 protected:
  Result<GameSession> Load(const std::string& year = "2450", const std::string& map = "Demo.MAP") {
    ChooseMap(choice, folder / map);
    FindReportFiles(choice, year, [] { return true; });
    EXPECT_EQ(AcceptOpenInput(choice, {.Soi = "100", .GameYear = year, .Years = years}),
              OpenProblem());
    return LoadGame(choice, "", {});
  }

  GameFolder folder;
  GameChoice choice;
  RowYears years;
};

TEST_F(LoadGameTest, MergesTheReportsIntoOneGame) {
  const Result<GameSession> loaded = Load();
  ASSERT_TRUE(loaded) << loaded.Message();
  EXPECT_EQ(loaded->UniverseExtent, 1400);
  EXPECT_EQ(loaded->GridSize, 650);
  EXPECT_EQ(loaded->MyRaceName, "Humanoid");
  EXPECT_EQ(loaded->PlayerCount, 2);
  const std::tuple<int, PlanetField, const char*> fields[] = {
      {1, PlanetField::X, "50"},
      {1, PlanetField::Y, "100"},
      {1, PlanetField::AgeText, "Current"},
      {1, PlanetField::Population, "900000"},
      {1, PlanetField::SoiRadius, "81"},
      {1, PlanetField::GateRange, "300"},
      {1, PlanetField::TerraValue, "97"},
      {1, PlanetField::ScoreValue, "39"},
      {2, PlanetField::IronMR, "Remote"},
      {2, PlanetField::Starbase, "None"},
      {3, PlanetField::Owner, "Drask"},
      {3, PlanetField::AgeText, "Current"},
      {3, PlanetField::GateRange, "10000"},
      {3, PlanetField::GateMass, "10000"},
      {3, PlanetField::ScanRange, "0"},
      {3, PlanetField::InMyReport, "1"},
      {3, PlanetField::OwnerIndex, "2"},
      {4, PlanetField::Owner, ""},
      {4, PlanetField::AgeText, ""},
      {4, PlanetField::ScoreValue, "3"}};
  for (const auto& [planet, field, text] : fields) {
    EXPECT_EQ(FieldText(loaded->Planet(planet)[field]), text)
        << "planet " << planet << ", field " << static_cast<int>(field);
  }
}

TEST_F(LoadGameTest, CountsAndEstimatesEveryPlayer) {
  const Result<GameSession> loaded = Load();
  ASSERT_TRUE(loaded) << loaded.Message();
  const std::tuple<PlayerField, const char*> fields[] = {
      {PlayerField::Name, "Humanoid"},  {PlayerField::LargePlanets, "2"},
      {PlayerField::PlanetsOwned, "2"}, {PlayerField::TotalPopulation, "1150000"},
      {PlayerField::TotalMines, "410"}, {PlayerField::TotalIron, "1.215"},
      {PlayerField::GravMin, "1.12"},   {PlayerField::GravMax, "1.5"},
      {PlayerField::TempMin, "-20"},    {PlayerField::RadMax, "60"},
      {PlayerField::ColourSlot, "1"},   {PlayerField::GravImmune, "0"},
      {PlayerField::PrimaryTrait, ""}};
  for (const auto& [field, text] : fields) {
    EXPECT_EQ(FieldText(loaded->Player(1)[field]), text) << static_cast<int>(field);
  }
  int points = 0;
  for (int gx = 0; gx <= 650; ++gx) {
    for (int gy = 0; gy <= 650; ++gy)
      points += loaded->InfluenceGrid.At(gx, gy).Holder == 1 ? 1 : 0;
  }
  EXPECT_GT(points, 0);
  EXPECT_EQ(loaded->Player(1)[PlayerField::Territory].Number(),
            std::floor(points / (650.0 * 650) * (400.0 * 400)));
}

TEST_F(LoadGameTest, AppliesTheCompanionFiles) {
  folder.Write("demo.qvc", "\"Drask\",1,10,20,30\r\n");
  folder.Write("Demo.QVL", "C , 1100, 1200, 50, 3\r\n");
  folder.Write("Demo.QVD",
               "\"Humanoid\"\r\n.5\r\n2\r\n-9\r\n9\r\n1\r\n99\r\n1\r\n0\r\n0\r\n\"HE\"\r\n" +
                   std::string("1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1"
                               "\r\n1\r\n1\r\n\"a note\"\r\n"));
  const Result<GameSession> loaded = Load();
  ASSERT_TRUE(loaded) << loaded.Message();
  EXPECT_EQ(loaded->Player(1).ColourSlot(), 2);
  EXPECT_EQ(*loaded->ColourOf(2), (Colour{10, 20, 30}));
  EXPECT_EQ(loaded->DrawingLayer, "C,1100,1200,50,3\r\n");
  EXPECT_EQ(loaded->Player(1)[PlayerField::GravMin], FieldValue(0.5));
  EXPECT_EQ(FieldText(loaded->Player(1)[PlayerField::NotesText]), "a note");
}

TEST_F(LoadGameTest, LeavesTheNewStyleFieldsOfAnOldGameEmpty) {
  folder.AddOldReport();
  std::filesystem::remove(folder / "Demo.P1");
  std::filesystem::remove(folder / "Demo.P3");
  const Result<GameSession> loaded = Load("");
  ASSERT_TRUE(loaded) << loaded.Message();
  EXPECT_TRUE(loaded->Planet(1)[PlanetField::GateRange].IsEmpty());
  EXPECT_TRUE(loaded->Planet(1)[PlanetField::Resources].IsEmpty());  // no TAB closes that column
  EXPECT_TRUE(loaded->Player(1)[PlayerField::GravImmune].IsEmpty());
  EXPECT_EQ(loaded->MyRaceName, "");
  EXPECT_EQ(loaded->Player(1)[PlayerField::Territory].Kind(), FieldKind::Whole);
}

TEST_F(LoadGameTest, KeepsTheSeventeenthOwnerWithoutARecord) {
  std::string map = "#\tX\tY\tName\r\n";
  std::string report = "heading\r\n";
  for (int i = 1; i <= 18; ++i) {
    const std::string number = std::to_string(i);
    map += number + "\t1100\t1100\tP" + number + "\r\n";
    report += "P" + number + "\tR" + number + "\t\t0\t100000\t\r\n";
  }
  folder.Write("Demo.MAP", map);
  folder.Write("Demo.P1", report);
  const Result<GameSession> loaded = Load();
  ASSERT_TRUE(loaded) << loaded.Message();
  EXPECT_EQ(loaded->PlayerCount, 16);
  EXPECT_EQ(loaded->Planet(17).OwnerIndex(), 0);
  EXPECT_EQ(loaded->Planet(18).Owner(), "R18");
  EXPECT_EQ(loaded->OwnersWithoutRecord, (std::vector<std::string>{"R17", "R18"}));
}

TEST_F(LoadGameTest, AgesReportsByTheirYears) {
  folder.Write("Demo.P1", "heading\r\nAlpha\tHumanoid\t\t0\t1\t\r\n");
  folder.Write("Demo.P3", "heading\r\nBeta\tDrask\t\t3\t1\t\r\nGamma\tDrask\t\t97\t1\t\r\n");
  years[3] = "2447";
  const Result<GameSession> loaded = Load();
  ASSERT_TRUE(loaded) << loaded.Message();
  EXPECT_EQ(loaded->Planet(1).AgeText(), "Current");
  EXPECT_EQ(loaded->Planet(2).AgeText(), "  6 years old");
  EXPECT_EQ(loaded->Planet(3).AgeText(), " 100 years old");
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
    const Result<GameSession> loaded = Load();
    ASSERT_TRUE(loaded) << loaded.Message();
    EXPECT_EQ(loaded->PlayerCount, 16);
    EXPECT_EQ(loaded->OwnersWithoutRecord.size(), left);
  }
}

TEST_F(LoadGameTest, FindsAGameOfAnyNameBehindALinkAmongAThousandOtherFiles) {
  for (const std::string name : {"My Game", "Größe & Würde", "a, b; c", "[x](y){z}", "  "}) {
    for (int i = 17; i < 217; ++i) folder.Write(name + ".P" + std::to_string(i), "other");
    std::filesystem::create_symlink(folder / "Demo.MAP", folder / (name + ".MAP"));
    folder.Write(name + ".P3", folder.Read("Demo.P3"));
    const Result<GameSession> loaded = Load("", name + ".MAP");
    ASSERT_TRUE(loaded) << name << loaded.Message();
    EXPECT_EQ(loaded->Planet(1).Population(), 100) << name;
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
    folder.Write(companion, std::string(kLargestTextFile - 1, '\n') + "x");
  }
  const Result<GameSession> loaded = Load();
  ASSERT_TRUE(loaded) << loaded.Message();
  EXPECT_EQ(loaded->Planet(20000)[PlanetField::InMyReport], FieldValue(1));
}

struct Fault {
  const char* What;
  const char* File;
  std::string Content;
  const char* Message;
};

TEST_F(LoadGameTest, NamesTheFileThatCannotBeUsed) {
  const Fault faults[] = {
      {"a damaged map", "Demo.MAP", "#\n1\tx\t2\tAlpha\n", "Demo.MAP, line 2: X is no number"},
      {"an empty report", "Demo.P3", "", "Demo.P3, line 1: the heading of a planet report"},
      {"a binary report", "Demo.P1", std::string("a\nb\0", 4),
       "Demo.P1, line 2: this is no text file"},
      {"a binary companion", "Demo.QVC", std::string(3, '\0'),
       "Demo.QVC, line 1: this is no text"}};
  for (const Fault& fault : faults) {
    const GameFolder fresh;
    fresh.Write(fault.File, fault.Content);
    ChooseMap(choice, fresh / "Demo.MAP");
    FindReportFiles(choice, "", [] { return true; });
    const Result<GameSession> loaded = LoadGame(choice, "", {});
    ASSERT_FALSE(loaded) << fault.What;
    EXPECT_NE(loaded.Message().find(fault.Message), std::string::npos) << loaded.Message();
  }
  ChooseMap(choice, folder / "Demo.MAP");
  FindReportFiles(choice, "", [] { return true; });
  std::filesystem::remove(folder / "Demo.P3");
  EXPECT_NE(LoadGame(choice, "", {}).Message().find("Demo.P3: there is no such file"),
            std::string::npos);
}

TEST(MainCaption, NamesMapAndYear) {
  EXPECT_EQ(MainCaption("1.6.8", nullptr), "Quorvane for Stars!   Version 1.6.8");
  GameChoice choice;
  ChooseMap(choice, std::filesystem::path("folder") / "Demo.MAP");
  EXPECT_EQ(MainCaption("1.6.8", &choice), "Quorvane for Stars!   Version 1.6.8  { Demo.MAP }");
  choice.GameYear = 2450;
  EXPECT_EQ(MainCaption("1.6.8", &choice),
            "Quorvane for Stars!   Version 1.6.8  { Demo.MAP  Year: 2450 }");
}

}  // namespace
}  // namespace quorvane
