#include "ui/open_file.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <memory>

#include "support/game_folder.h"
#include "support/scripted_prompts.h"
#include "support/window_driver.h"
#include "ui/file_chooser.h"

namespace quorvane {
namespace {

class OpenFileTest : public testing::Test {
 protected:
  OpenFileTest() {
    state.StarsInstallDir = folder.Path();
    dialog = std::make_unique<OpenFile>(state, prompts);
    dialog->show();
  }
  WindowDriver Driver() { return WindowDriver(*dialog); }

  GameFolder folder;
  ScriptedPrompts prompts;
  OpenState state;
  std::unique_ptr<OpenFile> dialog;
};

TEST_F(OpenFileTest, ShowsTheReportsOfTheClickedMap) {
  WindowDriver driver = Driver();
  EXPECT_FALSE(driver.IsEnabled("Command1"));
  EXPECT_FALSE(driver.IsVisible("Label1"));
  folder.Write("Demo.QVR", "3\r\n");
  folder.Write("Demo.YRS", "\"2450\"\r\n\"\"\r\n\"2449\"\r\n");
  driver.ClickEntry("File1", "Demo.MAP");
  EXPECT_TRUE(driver.IsEnabled("Command1"));
  EXPECT_TRUE(driver.IsEnabled("SaveYears"));
  EXPECT_EQ(driver.Text("Check1(3)"), "Demo.P3");
  EXPECT_EQ(driver.Text("TxtPxYear(3)"), "2449");
  EXPECT_TRUE(driver.IsVisible("Player(1)"));
  EXPECT_FALSE(driver.IsVisible("Player(2)"));
  EXPECT_TRUE(driver.IsDown("Player(3)"));
  EXPECT_EQ(state.Choice.MyRaceRow, 3);
  EXPECT_EQ(state.Choice.ReportFiles[1].Included, "1");
  driver.Click("Check1(1)");
  EXPECT_EQ(state.Choice.ReportFiles[1].Included, " 0");
  driver.Click("Player(1)");
  EXPECT_EQ(state.Choice.MyRaceRow, 1);
}

TEST_F(OpenFileTest, RefusesWhatCannotBeLoadedAndKeepsTheRest) {
  WindowDriver driver = Driver();
  driver.ClickEntry("File1", "Demo.MAP").Type("txtGameYear", "2450").Type("TxtPxYear(3)", "2451");
  driver.Click("Command1");
  EXPECT_EQ(prompts.Shown(), Texts{"One or more game files has a Year higher then the Game Year"});
  driver.Type("TxtPxYear(3)", "2449").Type("txtSOI", "49").Click("Command1");
  EXPECT_EQ(prompts.Shown(), Texts{"Minimum SOI must be 50ly"});
  EXPECT_EQ(driver.Text("txtSOI"), "50");
  driver.Type("txtSOI", "501");
  EXPECT_EQ(prompts.Shown(), Texts{"Maximum SOI must be 500ly"});
  EXPECT_EQ(driver.Text("txtSOI"), "500");
  EXPECT_TRUE(dialog->isVisible());
  driver.Click("Command1");
  EXPECT_TRUE(prompts.Shown().empty());
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(state.OpenDialogResult, 0);
  EXPECT_EQ(state.Choice.ReportFiles[1].Year, "2450");
  EXPECT_EQ(state.Choice.SoiSetting, 500);
}

TEST_F(OpenFileTest, RebuildsTheRowsAfterTheRaceWasUntickedOrAReportWentAway) {
  WindowDriver driver = Driver();
  driver.ClickEntry("File1", "Demo.MAP").Click("Check1(1)").Click("Command1");
  EXPECT_EQ(prompts.Shown(),
            Texts{"You have not included the datafile you have selected as your race"});
  EXPECT_TRUE(driver.IsDown("Check1(1)"));
  EXPECT_EQ(state.Choice.ReportFiles[1].Included, "1");
  std::filesystem::remove(folder / "Demo.P1");
  driver.Click("Command1");
  EXPECT_EQ(prompts.Shown(), Texts{"Some files have been deleted/renamed. Try again"});
  EXPECT_FALSE(driver.IsVisible("Check1(1)"));
  EXPECT_TRUE(driver.IsDown("Player(3)"));
}

TEST_F(OpenFileTest, UsesTheOldReportWhenTheAnswerIsNo) {
  folder.AddOldReport();
  WindowDriver driver = Driver();
  driver.Type("txtGameYear", "2450").ClickEntry("File1", "Demo.MAP");
  ASSERT_EQ(prompts.Shown().size(), 1U);
  EXPECT_EQ(state.Choice.ReportStyle, kOldReportStyle);
  EXPECT_EQ(driver.Text("PLALabelText"), "Old Report game using Demo.PLA");
  EXPECT_TRUE(driver.IsVisible("PLALabelText"));
  EXPECT_FALSE(driver.IsVisible("RemRace"));
  EXPECT_FALSE(driver.IsVisible("Check1(1)"));
  EXPECT_EQ(state.Choice.ReportFiles[1].Year, "2450");
  prompts.Answer(true);
  driver.ClickEntry("File1", "Demo.MAP");
  EXPECT_EQ(state.Choice.ReportStyle, kNewReportStyle);
  EXPECT_FALSE(driver.IsVisible("PLALabelText"));
}

TEST_F(OpenFileTest, SavesYearsAndRaceBesideTheMap) {
  WindowDriver driver = Driver();
  driver.ClickEntry("File1", "Demo.MAP").Type("TxtPxYear(3)", "2440").Click("Player(3)");
  driver.Click("SaveYears").Click("RemRace");
  EXPECT_EQ(prompts.Shown(),
            (Texts{"Year Information saved", "Your Race number has been remembered"}));
  EXPECT_EQ(folder.Read("Demo.QVR"), "3\r\n");
  EXPECT_NE(folder.Read("Demo.YRS").find("\"2440\""), std::string::npos);

  std::filesystem::create_directories(folder / "Demo.QVR.quorvane-new/in the way");
  driver.Click("RemRace");
  const Texts shown = prompts.Shown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_NE(shown[0].find("Demo.QVR: the file cannot be written"), std::string::npos) << shown[0];
  EXPECT_EQ(folder.Read("Demo.QVR"), "3\r\n");
}

TEST_F(OpenFileTest, ForgetsTheMapWhenTheFolderChanges) {
  std::filesystem::create_directory(folder / "Deeper");
  dialog = std::make_unique<OpenFile>(state, prompts);
  dialog->show();
  WindowDriver driver = Driver();
  driver.ClickEntry("File1", "Demo.MAP").DoubleClickEntry("Dir1", "      Deeper");
  EXPECT_EQ(driver.Find<QListWidget>("File1").count(), 0);
  EXPECT_FALSE(driver.IsEnabled("Command1"));
  EXPECT_FALSE(driver.IsEnabled("SaveYears"));
  EXPECT_FALSE(driver.IsVisible("RemRace"));
  EXPECT_FALSE(driver.IsVisible("Check1(1)"));
  EXPECT_EQ(state.Choice.MapDirectory, " ");
}

TEST_F(OpenFileTest, SaysThatAMapHasNoReports) {
  folder.Write("Lonely.map", "x");
  dialog = std::make_unique<OpenFile>(state, prompts);
  dialog->show();
  WindowDriver driver = Driver();
  driver.ClickEntry("File1", "Demo.MAP").ClickEntry("File1", "Lonely.map");
  EXPECT_EQ(prompts.Shown(), Texts{"No Player files found for this map"});
  EXPECT_TRUE(driver.IsEnabled("Command1"));
  EXPECT_EQ(state.Choice.MapFilePath, folder / "Lonely.map");
  EXPECT_EQ(driver.Text("Check1(1)"), "Demo.P1");
}

TEST_F(OpenFileTest, TakesItsCloseBoxAsCancelAndStartsAfresh) {
  state.OpenDialogResult = 0;
  dialog->close();
  EXPECT_EQ(state.OpenDialogResult, 1);
  EXPECT_TRUE(dialog->IsDiscarded());
}

TEST(OpenFileStart, FallsBackToTheHomeFolder) {
  ScriptedPrompts prompts;
  OpenState state;
  state.StarsInstallDir = "/no/such/folder";
  const OpenFile dialog(state, prompts);
  EXPECT_FALSE(dialog.Dir1->Folder().empty());
  EXPECT_TRUE(prompts.Shown().empty());
}

}  // namespace
}  // namespace quorvane
