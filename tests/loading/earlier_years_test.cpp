#include "loading/earlier_years.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "formats/game_files.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"
#include "support/game_folder.h"

namespace quorvane {
namespace {

class EarlierYears : public testing::Test {
 protected:
  EarlierYears() {
    ChooseMap(game, folder / "Demo.MAP");
    FindReportFiles(game, "", [] { return true; });
    game.SoiSetting = 120;
    game.GameYear = 2460;
  }

  void Write(const std::filesystem::path& name, const std::string& bytes = "x") {
    std::filesystem::create_directories((folder.Path() / name).parent_path());
    folder.Write(name.string(), bytes);
  }
  // "Backup 2450 turn 2" for each: what was found, its year, what tells it, the reports.
  std::string Found(const std::filesystem::path& in = "") const {
    const char* const sources[] = {"none", "turn", "file", "folder"};
    std::string text;
    for (const EarlierYear& found : FindEarlierYears(game, folder.Path() / in)) {
      text += found.Name + " " + std::to_string(found.Year) + " " +
              sources[static_cast<int>(found.Source)] + " " + std::to_string(found.ReportCount) +
              (found.HasOwnReport ? "\n" : " not mine\n");
    }
    return text;
  }

  GameFolder folder;
  GameChoice game;
};

TEST_F(EarlierYears, AreFoundInBackupsAndFoldersNamedByYear) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"Backup", "demo.p1", "Backup 0 none 1\n"},
      {"BACKUP12", "Demo.P16", "BACKUP12 0 none 1 not mine\n"},
      {"2450", "DEMO.p1", "2450 2450 folder 1\n"},
      {"Year 2450", "Demo.p1", "Year 2450 2450 folder 1\n"},
      {"9999 Backup", "Demo.p1", "9999 Backup 9999 folder 1\n"},
      {"2400-2410", "Demo.p1", "2400-2410 0 none 1\n"},
      {"2399", "Demo.p1", ""},
      {"10000", "Demo.p1", ""},
      {"x2450", "Demo.p1", ""},
      {"\xC3\xA9"
       "2450",
       "Demo.p1", ""},
      {"Backup of 1", "Demo.p1", ""},
      {"Backup/2450", "Demo.p1", ""},
      {"Backup", "Other.p1", ""},
      {"Backup", "Demo.p17", ""},
      {"Backup", "Demo.pla", ""},
      {"Backup", "Demo 2451.P3", "Demo 2451 2451 file 1 not mine\n"},
      {".", "demo_2450.p1", "Demo 2450 2450 file 1\n"},
      {".", "2450-DEMO.P1", "Demo 2450 2450 file 1\n"},
      {".", "Demo (2450).p1", "Demo 2450 2450 file 1\n"},
      {".", "Demo2450.p1", ""},
      {".", "Demo 2450.p01", ""},
      {".", "Demo 2450 b.p1", ""},
      {".", "Demo 2450 2451.p1", ""},
      {".", "New Demo 2450.p1", ""},
      {".", "Demo 245.p1", ""}};
  for (const auto& [in, name, expected] : cases) {
    Write(std::filesystem::path(in) / name);
    EXPECT_EQ(Found(), expected) << in << "/" << name;
    std::filesystem::remove_all(folder.Path() / (std::string(in) == "." ? name : in));
    std::filesystem::remove_all(folder.Path() / "Backup");
  }
}

TEST_F(EarlierYears, OfOneYearAreOneAndComeInOrder) {
  for (const char* name : {"Demo 2451.p3", "demo_2451.p1", "DEMO 2451.P1", "2451/Demo.p1",
                           "Backup/Demo.p3", "Backup/Demo 2449.p2", "Backup/demo.p1"}) {
    Write(name);
  }
  Write("Demo 2451.m1", TurnBlock(2440));
  EXPECT_EQ(Found(),
            "Demo 2449 2449 file 1 not mine\nDemo 2451 2451 file 2\n2451 2451 folder 1\n"
            "Backup 0 none 2\n");
  Write("Backup/Demo.hst", TurnBlock(2452));
  Write("2451/Demo.m2", TurnBlock(2448));
  Write("2451/Demo.m1", TurnBlock(2447));
  EXPECT_EQ(Found(),
            "2451 2447 turn 1\nDemo 2449 2449 file 1 not mine\nDemo 2451 2451 file 2\n"
            "Backup 2452 turn 2\n");
  EXPECT_EQ(Found("2451/"), "2451 2447 turn 1\n") << "another folder's own reports count";
  Write("2451/Demo.map", folder.Read("Demo.MAP"));
  Write("Backup/Demo.map", folder.Read("Demo.MAP") + " ");
  Write("Demo 2451.map");
  EXPECT_EQ(Found(), "2451 2447 turn 1\n") << "what has another map is another game";
  for (int files = 0; files < 12; ++files) {
    int left = files;
    EXPECT_TRUE(FindEarlierYears(game, folder.Path(), [&] { return left-- <= 0; }).empty());
  }
  Write("Backup1/Demo.PLA");
  game.ReportStyle = kOldReportStyle;
  game.MyRaceRow = 1;
  EXPECT_EQ(Found(), "Backup1 0 none 1\n");
}

TEST_F(EarlierYears, AreLoadedAsTheGameIsButOfTheirYear) {
  Write("Backup/demo.P1", folder.Read("Demo.P1"));
  Write("Backup/Demo.P3", folder.Read("Demo.P3"));
  Write("Backup1/Demo.p3", folder.Read("Demo.P3"));
  Write("Backup1/demo.qvl", "L,1,2,3,4,5\r\n");
  Write("Demo.QVL", "L,1,2,3,4,5\r\nL,1,2,3,4,5\r\n");
  std::vector<EarlierYear> found = FindEarlierYears(game, folder.Path());
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(SetYear(found[0], " 2450 ").Message(), "");
  const auto whole = LoadGame(found[0].Choice, "Humanoid", {});
  ASSERT_TRUE(whole) << whole.Message();
  EXPECT_EQ(whole->GameYear + whole->SoiSetting, 2450 + 120);
  EXPECT_EQ(whole->ReportFiles[3].Year, "2450");
  EXPECT_EQ(whole->MyRaceName, "Humanoid");
  EXPECT_TRUE(whole->DrawingLayer.empty());
  EXPECT_TRUE(SetYear(found[1], "2451"));
  const auto foreign = LoadGame(found[1].Choice, "", {});
  ASSERT_TRUE(foreign) << foreign.Message();
  EXPECT_EQ(foreign->MyRaceName, "");
  EXPECT_EQ(foreign->DrawingLayer.size(), 1U);
  for (const char* wrong : {"", "2399", "10000", "02450", "2450x", "-2450", "24 50"}) {
    ASSERT_TRUE(SetYear(found[1], "2451"));
    EXPECT_EQ(SetYear(found[1], wrong).Message(), "A year is a number from 2400 to 9999") << wrong;
    EXPECT_EQ(found[1].Year + found[1].Choice.GameYear, 0) << wrong;
    EXPECT_EQ(found[1].Choice.ReportFiles[3].Year, "");
  }
}

}  // namespace
}  // namespace quorvane
