#include "ui/open_file.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFocusEvent>
#include <QListWidget>
#include <QMenu>
#include <QScreen>
#include <QTest>
#include <tuple>

#include "model/field_value.h"
#include "support/game_folder.h"
#include "support/scripted_prompts.h"
#include "support/window_driver.h"
#include "ui/file_chooser.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

class OpenFileTest : public testing::Test {
 protected:
  OpenFileTest() { dialog.show(); }

  static OpenState StartIn(const TempFolder& folder) {
    std::filesystem::create_directory(folder / "Deeper");
    folder.Write("Lonely.map", "x");
    return {.StarsInstallDir = folder.Path()};
  }

  GameFolder folder;
  ScriptedPrompts prompts;
  OpenState state = StartIn(folder);
  OpenFile dialog{state, prompts};
  WindowDriver driver{dialog};
};

TEST_F(OpenFileTest, ShowsTheReportsOfTheClickedMapAndWhatWasSavedBesideIt) {
  EXPECT_FALSE(driver.IsEnabled("Command1") || driver.IsVisible("Label1"));
  driver.ClickEntry("File1", "Demo.MAP").Type("TxtPxYear(3)", "2449").Click("Player(3)");
  driver.Click("SaveYears").Click("RemRace").Click("Player(1)").ClickEntry("File1", "Demo.MAP");
  EXPECT_TRUE(driver.IsEnabled("Command1") && driver.IsVisible("Label1"));
  EXPECT_EQ(driver.Text("Check1(3)") + driver.Text("TxtPxYear(3)"), "Demo.P32449");
  EXPECT_FALSE(driver.IsVisible("Player(2)"));
  EXPECT_TRUE(driver.IsDown("Player(3)"));
  EXPECT_EQ(state.Choice.MyRaceRow, 3);
  driver.Click("Check1(1)");
  EXPECT_EQ(state.Choice.ReportFiles[1].Included, " 0");
}

TEST_F(OpenFileTest, RefusesWhatCannotBeLoadedAndLeadsToItsBox) {
  driver.ClickEntry("File1", "Demo.MAP").Type("TxtPxYear(3)", "2449").Click("Command1");
  EXPECT_EQ(dialog.focusWidget(), dialog.txtGameYear);
  driver.Type("txtGameYear", "2448").Click("Command1");
  EXPECT_EQ(dialog.focusWidget()->objectName(), "TxtPxYear(3)");
  driver.Type("TxtPxYear(3)", "2447").Type("txtSOI", "49").Click("Command1");
  EXPECT_EQ(dialog.txtSOI->selectedText(), "50");
  EXPECT_EQ(prompts.Shown().size(), 3U);
  driver.Type("txtSOI", "501");
  EXPECT_EQ(prompts.Shown(), Texts{"Maximum SOI must be 500ly"});
  driver.Click("Command1");
  EXPECT_TRUE(prompts.Shown().empty());
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(state.OpenDialogResult, 0);
  EXPECT_EQ(state.Choice.ReportFiles[3].Year, "2447");
  EXPECT_EQ(state.Choice.SoiSetting, 500);
}

TEST_F(OpenFileTest, KeyboardGoesFromTheMapsToTheChosenRaceAndTheOthers) {
  EXPECT_EQ(dialog.focusWidget(), dialog.File1);
  QFocusEvent arrival(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(dialog.File1, &arrival);
  EXPECT_FALSE(driver.IsEnabled("Command1")) << "no choice yet";
  driver.Press("File1", Qt::Key_Space).Click("Player(3)").Click("RemRace");
  driver.ClickEntry("File1", "Demo.MAP").Press("File1", Qt::Key_Tab);
  EXPECT_EQ(dialog.focusWidget()->objectName(), "Player(3)");
  QApplication::processEvents();  // the rows get their places
  driver.Press("Player(3)", Qt::Key_Up);
  EXPECT_EQ(dialog.focusWidget()->objectName(), "Player(1)");
  EXPECT_EQ(state.Choice.MyRaceRow, 1);
  driver.Press("Player(1)", Qt::Key_Tab);
  EXPECT_EQ(dialog.focusWidget()->objectName(), "Check1(1)");
}

TEST_F(OpenFileTest, FitsASmallScreenAndScrollsTheRows) {
  EXPECT_LE(dialog.width(), dialog.screen()->availableSize().width());
  for (int row = 2; row <= 16; ++row) folder.Write("Demo.P" + std::to_string(row), "x");
  driver.ClickEntry("File1", "Demo.MAP");
  dialog.resize(683, 344);
  QApplication::processEvents();
  EXPECT_EQ(dialog.size(), QSize(683, 344));
  EXPECT_FALSE(driver.Find("Command1").visibleRegion().isEmpty());
  QWidget& lastYear = driver.Find("TxtPxYear(8)");
  EXPECT_TRUE(lastYear.visibleRegion().isEmpty());
  lastYear.setFocus();
  EXPECT_FALSE(lastYear.visibleRegion().isEmpty());
}

TEST_F(OpenFileTest, RebuildsTheRowsAfterTheRaceWasUntickedOrAReportWentAway) {
  driver.ClickEntry("File1", "Demo.MAP").Click("Check1(1)").Click("Command1");
  EXPECT_TRUE(driver.IsDown("Check1(1)"));
  std::filesystem::remove(folder / "Demo.P1");
  driver.Click("Command1");
  EXPECT_FALSE(driver.IsVisible("Check1(1)"));
  EXPECT_TRUE(driver.IsDown("Player(3)"));
}

TEST_F(OpenFileTest, UsesTheOldReportWhenTheAnswerIsNo) {
  folder.AddOldReport();
  driver.ClickEntry("File1", "Demo.MAP");
  EXPECT_EQ(driver.Text("PLALabelText"), "Old Report game using Demo.PLA");
  EXPECT_TRUE(driver.IsVisible("PLALabelText"));
  EXPECT_FALSE(driver.IsVisible("RemRace") || driver.IsVisible("Check1(1)"));
  prompts.Answer(true);
  driver.ClickEntry("File1", "Demo.MAP");
  EXPECT_FALSE(driver.IsVisible("PLALabelText"));
}

TEST_F(OpenFileTest, ForgetsTheMapWhenTheFolderChangesButNotForAVanishedOne) {
  driver.ClickEntry("File1", "Demo.MAP").ClickEntry("Dir1", "      Deeper");
  std::filesystem::remove(folder / "Deeper");
  driver.Press("Dir1", Qt::Key_Return).Press("Dir1", Qt::Key_Enter);
  EXPECT_EQ(prompts.Shown().size(), 2U);
  EXPECT_TRUE(dialog.isVisible() && driver.IsEnabled("Command1"));

  std::filesystem::create_directory(folder / "Deeper");
  driver.Press("Dir1", Qt::Key_Return);
  EXPECT_EQ(dialog.File1->count(), 0);
  EXPECT_FALSE(driver.IsEnabled("Command1") || driver.IsEnabled("SaveYears"));
  EXPECT_FALSE(driver.IsVisible("RemRace") || driver.IsVisible("Check1(1)"));
  EXPECT_EQ(state.Choice.MapDirectory, " ");
}

TEST_F(OpenFileTest, SaysThatAMapHasNoReports) {
  driver.ClickEntry("File1", "Lonely.map");
  EXPECT_EQ(prompts.Shown(), Texts{"No Player files found for this map"});
  EXPECT_EQ(state.Choice.MapFilePath, folder / "Lonely.map");
}

TEST_F(OpenFileTest, TakesItsCloseBoxAsCancelAndStartsAfreshInAFolderThatIsThere) {
  state = {.StarsInstallDir = "/no/such/folder", .OpenDialogResult = 0};
  dialog.close();
  EXPECT_EQ(state.OpenDialogResult, 1);
  EXPECT_TRUE(dialog.IsDiscarded());
  EXPECT_FALSE(OpenFile(state, prompts).Dir1->Folder().empty());
}

TEST_F(OpenFileTest, TakesTypedPathsAndRecentFolders) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  const QString path = PathText(folder.Path());
  EXPECT_EQ(driver.Text("FolderPath"), path);
  EXPECT_FALSE(driver.IsEnabled("RecentFolders"));
  driver.Type("FolderPath", "Deeper").Press("FolderPath", Qt::Key_Return);
  EXPECT_EQ(driver.Text("FolderPath"), path + "/Deeper");
  for (const char* refused : {"nowhere", "../Demo.P1"}) {
    driver.Type("FolderPath", refused).Press("FolderPath", Qt::Key_Return);
    EXPECT_EQ(prompts.Shown(), Texts{std::string("The folder ") + refused + " cannot be opened."});
    EXPECT_EQ(dialog.FolderPath->selectedText(), refused);
  }
  EXPECT_EQ(dialog.Dir1->Folder(), folder / "Deeper");
  QFocusEvent lookElsewhere(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(dialog.FolderPath, &lookElsewhere);
  EXPECT_EQ(driver.Text("FolderPath"), "../Demo.P1");
  driver.Press("FolderPath", Qt::Key_Tab);
  EXPECT_EQ(driver.Text("FolderPath"), path + "/Deeper");
  driver.Type("FolderPath", "file://" + path + "/demo.map").Press("FolderPath", Qt::Key_Return);
  EXPECT_EQ(state.Choice.MapFilePath, folder / "Demo.MAP");
  EXPECT_TRUE(driver.IsVisible("Player(1)") && dialog.isVisible()) << "chosen and not loaded";

  std::filesystem::create_directory(folder / "A&B");
  state.RecentFolders = {folder / "A&B", folder / "gone"};
  dialog.hide();
  dialog.show();
  emit dialog.RecentFolders->menu()->aboutToShow();
  const QList<QAction*> recent = dialog.RecentFolders->menu()->actions();
  EXPECT_EQ(recent.at(0)->text(), path + "/A&&B");
  recent.at(1)->trigger();
  EXPECT_EQ(prompts.Shown().size(), 1U);
  recent.at(0)->trigger();
  EXPECT_EQ(driver.Text("FolderPath"), path + "/A&B");
}

TEST_F(OpenFileTest, OffersTheYearThatTheTurnFileOfTheChosenRaceTells) {
  folder.Write("demo.m1", TurnBlock(2451));
  folder.Write("Demo.M3", TurnBlock(2450));
  EXPECT_FALSE(driver.IsVisible("OfferedYear"));
  driver.ClickEntry("File1", "Demo.MAP");
  EXPECT_EQ(driver.Text("OfferedYear"), "2451, from demo.m1");
  EXPECT_EQ(driver.Text("txtGameYear"), "") << "it is never typed by itself";
  driver.Click("Player(3)");
  EXPECT_EQ(driver.Text("OfferedYear"), "2450, from Demo.M3");
  dialog.OfferedYear->setFocus();
  driver.Press("OfferedYear", Qt::Key_Return);
  EXPECT_EQ(driver.Text("txtGameYear"), "2450");
  EXPECT_EQ(dialog.focusWidget(), dialog.txtGameYear);
  EXPECT_TRUE(dialog.isVisible() && dialog.Command1->isDefault());
  driver.ClickEntry("File1", "Lonely.map");
  EXPECT_FALSE(driver.IsVisible("OfferedYear"));
  driver.ClickEntry("File1", "Demo.MAP").Type("FolderPath", "Deeper");
  driver.Press("FolderPath", Qt::Key_Enter);
  EXPECT_FALSE(driver.IsVisible("OfferedYear"));
}

TEST_F(OpenFileTest, ShowsAnAcceptedChoiceSoThatItIsAcceptedAgain) {
  folder.AddOldReport();
  folder.Write("Demo.P4", "x");
  prompts.Answer(true);
  driver.ClickEntry("File1", "Demo.MAP").Click("Player(3)").Click("Check1(4)");
  driver.Type("TxtPxYear(1)", "2449").Type("txtGameYear", "2450").Type("txtSOI", "120");
  driver.Click("Command1");
  const GameChoice accepted = state.Choice;
  prompts.Shown();
  folder.Write("Demo.P5", "x");
  folder.Write("Demo.YRS", "2448,2448,2448,2448,2460,2460");
  dialog.ShowChoice(state.Choice);
  dialog.show();
  driver.Click("Command1");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(state.Choice.ReportStyle, kNewReportStyle);
  EXPECT_EQ(std::tuple(state.Choice.MapFilePath, state.Choice.MyRaceRow, state.Choice.GameYear,
                       state.Choice.SoiSetting),
            std::tuple(accepted.MapFilePath, 3, 2450, 120));
  for (std::size_t row = 1; row <= kMaxPlayers; ++row) {
    const ReportFileSlot& report = state.Choice.ReportFiles[row];
    const std::string& included = row == 5 ? "1" : accepted.ReportFiles[row].Included;
    EXPECT_EQ(NumericValue(report.Included), NumericValue(included)) << row;
    EXPECT_EQ(report.Year, accepted.ReportFiles[row].Year) << row;
  }
  GameChoice other = accepted;
  other.ReportStyle = kOldReportStyle;
  dialog.ShowChoice(other);
  EXPECT_EQ(state.Choice.ReportStyle, kOldReportStyle);
  for (const char* without : {"Lonely.map", "gone.map", "no/such/folder.map"}) {
    dialog.ShowChoice(accepted);
    other.MapFilePath = folder / without;
    dialog.ShowChoice(other);
    dialog.show();
    if (dialog.Command1->isEnabled()) driver.Click("Command1");
    EXPECT_TRUE(dialog.isVisible()) << without << " loads reports of another map";
    EXPECT_EQ(dialog.Dir1->Folder(), folder.Path());
  }
  EXPECT_EQ(prompts.Shown(), Texts{"No planet files selected"}) << "what the load button says";
}

}  // namespace
}  // namespace quorvane
