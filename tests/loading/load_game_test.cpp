#include "loading/load_game.h"

#include <gtest/gtest.h>

#include <vector>

#include "files/files.h"
#include "formats/drawing_file.h"
#include "formats/game_files.h"
#include "loading/report_finder.h"
#include "screens/open_checks.h"
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

TEST_F(LoadGameTest, PlacesAndScoresPlanetsAndCountsAndEstimatesTheirOwners) {
  const GameSession loaded = Load();
  const auto planet = [&](int number) {
    return TextsOf(loaded.Planet(number), {PlanetField::X, PlanetField::Y, PlanetField::OwnerIndex,
                                           PlanetField::ScoreValue});
  };
  EXPECT_EQ(planet(1), (Texts{"50", "100", "1", "39"}));
  EXPECT_EQ(planet(4), (Texts{"390", "10", "0", "3"}));  // never seen
  using Field = PlayerField;
  EXPECT_EQ(
      TextsOf(loaded.Player(1),
              {Field::LargePlanets, Field::PlanetsOwned, Field::TotalPopulation, Field::TotalMines,
               Field::TotalIron, Field::ColourSlot, Field::GravMin, Field::GravMax, Field::TempMin,
               Field::RadMax, Field::GravImmune, Field::PrimaryTrait, Field::Territory}),
      (Texts{"2", "2", "1150000", "410", "1.215", "1", "1.12", "1.5", "-20", "60", "0", "",
             "54514"}));
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

TEST_F(LoadGameTest, AppliesTheCompanionFiles) {
  folder.Write("demo.qvc", "\"Drask\",1,10,20,30\r\n");
  folder.Write("Demo.QVL", "C , 1100, 1200, 50, 3\r\n");
  folder.Write("Demo.QVD",
               "\"Humanoid\"\n.5,2,-9,9,1,99,1,0,0,\"HE\",1,1,1,1,1,1,1,1,1,1,1,1,1,1,\"a note\"");
  const GameSession loaded = Load();
  EXPECT_EQ(loaded.Player(1).ColourSlot(), 2);
  EXPECT_EQ(*loaded.ColourOf(2), (Colour{10, 20, 30}));
  EXPECT_EQ(DrawingLayerText(loaded.DrawingLayer), "C,1100,1200,50,3\r\n");
  EXPECT_EQ(TextsOf(loaded.Player(1), {PlayerField::TempMax, PlayerField::NotesText}),
            (Texts{"9", "a note"}));
}

TEST_F(LoadGameTest, KeepsWhatReportsSayBeyondTheFields) {
  const std::string line = folder.Read("Demo.P3");
  std::string owner = line.substr(line.find("Gamma"), line.find("\r\nAlpha") - line.find("Gamma"));
  const auto replace = [&owner](std::string_view from, std::string_view to) {
    owner.replace(owner.find(from), from.size(), to);
  };
  replace("100%\t\t", "100%\t    Scout (2)\t");
  replace("100\t\t0\t\t-1\t-1\t0", "100\tAlpha\t7\tDelta\t-1\t-1\t12");
  folder.Write("Demo.P3", "heading\r\n" + owner + "\r\n");
  folder.Write("Demo.P4", "heading\r\nGamma\tDrask\tDeath Star\t0\t1300000\t-3%\t\r\n");
  const GameSession loaded = Load();
  using Extra = PlanetExtra;
  const auto extras = [&](int planet) {
    return TextsOf(loaded.Planet(planet),
                   {Extra::ProductionQueue, Extra::CapacityUsed, Extra::DriverTarget,
                    Extra::DriverWarp, Extra::Route, Extra::StarbaseDamage});
  };
  EXPECT_EQ(extras(1), (Texts{"--- Queue is Empty ---", "61", "", "0", "", "0"}));
  EXPECT_EQ(extras(3), (Texts{"Scout (2)", "61", "Alpha", "7", "Delta", "12"}));
  EXPECT_EQ(FieldText(loaded.Planet(3)[PlanetField::Population]), "1300000") << "of the last one";
  const auto isLeftOut = [&](int planet, PlanetField field) {
    return loaded.Planet(planet).LeftOut()[static_cast<std::size_t>(field)];
  };
  EXPECT_TRUE(isLeftOut(3, PlanetField::HabValue));
  EXPECT_FALSE(isLeftOut(1, PlanetField::HabValue));
}

TEST_F(LoadGameTest, LeavesTraitsAndTerritoriesOfAnOldGameAsTheyAre) {
  folder.AddOldReport();
  std::filesystem::remove(folder / "Demo.P1");
  std::filesystem::remove(folder / "Demo.P3");
  const GameSession loaded = Load("");
  EXPECT_TRUE(loaded.Player(1)[PlayerField::GravImmune].IsEmpty());
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

// Every file of the game and of ours, stopping or starting at any byte: the open dialog or a
// message that names the file refuses it, or the game loads.
TEST_F(LoadGameTest, TakesOrNamesFilesCutAnywhere) {
  const std::string rest = "1\r\n0\r\n\"HE\"\r\n1,1,1,1,1,1,1,1,1,1,1,1,1,1,\"a note\"\r\n";
  const std::pair<const char*, std::string> kinds[] = {
      {"Demo.MAP", "#\tX\tY\tName\r\n1\t1050\t1060\t\"Alpha, Beta\"\r\n"},
      {"Demo.P1", "Name\r\nAlpha\tHumanoid\tDock\t0\t9000\t88%\t\t3\t4\t5%\r\n"},
      {"Demo.P3", "Name\r\nAlpha\tHumanoid\t\t"},
      {"Demo.PLA", "Name\r\nAlpha\tHumanoid\t\t2\t90\t8%\t\r\n"},
      {"Demo.YRS", "\"2449\"\r\n\"\"\r\n\"2448\"\r\n"},
      {"Demo.QVR", "1\r\n"},
      {"Demo.QVC", "\"Humanoid\",1,255,128,0\r\n\"Drask\",2,0,0,255\r\n"},
      {"Demo.QVL", "L,1050,1060,1070,1080,2\r\nT,1050,1060,\"a, b\",12,1\r\n"},
      {"Demo.QVD", "\"Humanoid\"\r\n.5,2,-9,9,1,99,1," + rest}};
  for (const auto& [name, content] : kinds) {
    const GameFolder cutFolder;
    ChooseMap(choice, cutFolder / "Demo.MAP");
    for (std::size_t cut = 0; cut <= content.size(); ++cut) {
      for (const std::string& part : {content.substr(0, cut), content.substr(cut)}) {
        cutFolder.Write(name, part);
        FindReportFiles(choice, "2450", [] { return false; });
        OpenInput input{.Soi = "50", .GameYear = "2450", .Years = {}};
        input.Years = LoadYearsFile(choice.YearsFilePath).value_or(input.Years);
        choice.MyRaceRow = LoadRememberedRace(choice.RememberedRaceFilePath).value_or(1);
        if (!AcceptOpenInput(choice, input).Message.empty()) continue;
        const std::string message = LoadGame(choice, "", {}).Message();
        EXPECT_TRUE(message.empty() || message.find(name) != message.npos) << part << message;
      }
    }
  }
}

}  // namespace
}  // namespace quorvane
