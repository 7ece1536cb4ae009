#include "ui/game_memories.h"

#include <QMenu>
#include <QSettings>
#include <filesystem>
#include <tuple>

#include "formats/game_files.h"
#include "support/write_faults.h"
#include "ui/details_panel.h"
#include "ui/main_window_fixture.h"
#include "ui/overlay_bar.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

GameMemory Memory(const fs::path& map, std::int64_t opened) {
  GameMemory game;
  ChooseMap(game.Choice, map);
  game.Opened = opened;
  return game;
}

class GameMemoriesTest : public testing::Test {
 protected:
  fs::path File() const { return folder / "quorvane.ini"; }

  TempFolder folder;
};

TEST_F(GameMemoriesTest, ComeBackWholeWhateverTheNames) {
  const fs::path odd = folder.Path() / "100%, a=b [x] \xBA\xE4\n|;#.map";
  GameMemory game = Memory(odd, 5000);
  game.Choice.MyRaceRow = 2;
  game.Choice.GameYear = 2451;
  game.Choice.SoiSetting = 250;
  game.Choice.ReportFiles[2] = {
      .Path = odd.parent_path() / "a|b%41.p2", .Included = "1", .Year = "2451"};
  game.Choice.ReportFiles[16] = {.Path = odd.parent_path() / "x.p16", .Included = "0", .Year = ""};
  game.Shown.Switches.Set(OverlayKind::OwnedPlanets, true);
  game.Shown.Switches.Set(OverlayKind::NamesWhite, true);
  game.Shown.Switches.RaceName = "A \"&\", %1;\\ \xC3\xA4";
  game.Shown.Zoom = {.XMin = 1, .XMax = 101, .YMin = 0, .YMax = 100};
  game.Shown.SelectedX = 20;
  game.Shown.SelectedY = 30;
  game.Shown.Tab = 3;
  game.Files = {{.Kind = GameFileKind::Turn,
                 .Row = 2,
                 .Name = "\xBA.m2",
                 .Size = 7,
                 .Time = -9,
                 .Year = 2451},
                {.Name = odd.filename(), .Size = 1ULL << 40U}};
  {
    PreferencesFile preferences(File());
    GameMemories(preferences).Keep(Memory(folder / "older.map", 4000));
    GameMemories(preferences).Keep(game);
  }
  PreferencesFile preferences(File());
  const GameMemories memories(preferences);
  ASSERT_EQ(memories.Games().size(), 2U);
  const GameMemory& back = memories.Games()[0];
  EXPECT_EQ(back.Choice.MapFilePath, odd);
  EXPECT_EQ(back.Choice.ReportFiles, game.Choice.ReportFiles);
  EXPECT_EQ(back.Choice.EmpireDataFilePath, game.Choice.EmpireDataFilePath);
  EXPECT_EQ(std::tuple(back.Choice.MyRaceRow, back.Choice.GameYear, back.Choice.SoiSetting),
            std::tuple(2, 2451, 250));
  EXPECT_EQ(back.Shown, game.Shown);
  EXPECT_EQ(back.Files, game.Files);
  EXPECT_EQ(memories.Folders(), std::vector<fs::path>{folder.Path()});
  EXPECT_EQ(memories.TimeOfOpening(3000), 5001) << "the clock was set back";
}

// Two programs at once keep what both remember; of very many games the oldest are forgotten.
TEST_F(GameMemoriesTest, AreSharedAndBounded) {
  PreferencesFile first(File());
  PreferencesFile second(File());
  GameMemories(first).Keep(Memory(folder / "first.map", 1000));
  GameMemories(second).Keep(Memory(folder / "second.map", 1001));
  PreferencesFile both(File());
  GameMemories memories(both);
  EXPECT_EQ(memories.Games().size(), 2U);
  for (int game = 1; game <= 60; ++game) {
    memories.Keep(Memory(folder / ("game" + std::to_string(game)), 2000 + game));
  }
  PreferencesFile later(File());
  EXPECT_EQ(GameMemories(later).Games().size(), 50U);
  EXPECT_EQ(GameMemories(later).Find(folder / "first.map"), nullptr);
}

TEST_F(GameMemoriesTest, NonsenseInThemIsPassedOver) {
  PreferencesFile preferences(File());
  GameMemories(preferences).Keep(Memory(folder / "Demo.map", 1000));
  const QString group = preferences.Groups().at(0);
  QMap<QString, QString> texts = preferences.TextsOf(group);
  const char* nonsense[] = {"", "-1", "99999999999999999999", "1 2 x 4", "a|b|c|d", "||", "\x01"};
  for (const char* text : nonsense) {
    for (const QString& key : texts.keys()) {
      if (key != "Map") texts[key] = text;
    }
    texts["Zoom"] = text;
    texts["Report7"] = text;
    texts["File1"] = QString("9 9 9 9|%1|x").arg(text);
    preferences.KeepTexts(group, texts);
    const GameMemories memories(preferences);
    ASSERT_EQ(memories.Games().size(), 1U);
    const GameMemory& game = memories.Games()[0];
    EXPECT_EQ(game.Choice.SoiSetting, 100) << text;
    EXPECT_FALSE(game.Shown.Zoom) << text;
    EXPECT_TRUE(game.Files.empty()) << text;
    EXPECT_GE(game.Shown.Tab, 0);
  }
  preferences.KeepTexts("Game-0123456789abcdef", {{"Map", "elsewhere"}});
  EXPECT_EQ(GameMemories(preferences).Games().size(), 1U) << "no game has that name";
}

TEST_F(GameMemoriesTest, StayWholeOnAFullDisk) {
  PreferencesFile preferences(File());
  GameMemories memories(preferences);
  memories.Keep(Memory(folder / "first.map", 1000));
  const std::string before = folder.Read("quorvane.ini");
  {
    const FullDisk full(1);
    memories.Keep(Memory(folder / "second.map", 1001));
  }
  EXPECT_EQ(folder.Read("quorvane.ini"), before);
  ASSERT_TRUE(preferences.TakeFault());
  EXPECT_EQ(memories.Games().size(), 2U) << "as long as the program runs";
}

// The program's window with a preferences file of its own.
class ReopenTest : public testing::Test {
 protected:
  ReopenTest() {
    Main main(folder.Path(), &prompts, File());
    main.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
    WindowDriver driver(main);
    LoadGame(driver, "Demo.MAP");
    driver.Click("OvButt(6)").Choose("GameReopenAtStart");
    main.Detail->setCurrentIndex(2);
    main.close();
  }
  fs::path File() const { return settings / "quorvane.ini"; }
  // What the open dialog shows at first, and then the dialog is cancelled.
  QString OpenDialogAt(Main& main, bool begins) {
    QString shown = "no dialog";
    InNextDialog([&shown](QWidget& opened) {
      WindowDriver dialog(opened);
      const auto& list = dialog.Find<QListWidget>("File1");
      shown = list.currentItem() != nullptr ? list.currentItem()->text() : "no map";
      shown += " " + dialog.Text("txtGameYear");
      dialog.Click("Command2");
    });
    begins ? main.Begin() : main.mnuMap_Click();
    return shown;
  }

  GameFolder folder;
  TempFolder settings;
  ScriptedPrompts prompts;
};

TEST_F(ReopenTest, RecentGamesComeBackAndThoseThatAreGoneAreGrey) {
  Main main(folder.Path(), &prompts, File());
  main.show();
  WindowDriver driver(main);
  QMenu& recent = *main.Menu.GameRecent;
  ASSERT_EQ(recent.actions().size(), 1);
  EXPECT_TRUE(recent.actions()[0]->text().startsWith("Demo  2450  (20"));
  driver.Choose("GameRecent(1)");
  QApplication::processEvents();
  EXPECT_TRUE(main.Session().IsLoaded() && driver.IsDown("OvButt(6)"));
  EXPECT_EQ(main.Detail->currentIndex(), 2);
  fs::rename(folder / "Demo.MAP", folder / "away");
  emit main.Menu.GameMenu->aboutToShow();
  EXPECT_FALSE(recent.actions()[0]->isEnabled());
  EXPECT_EQ(prompts.Shown(), Texts());
}

TEST_F(ReopenTest, WhatCannotBeReopenedIsToldOfAndTheDialogComes) {
  fs::rename(folder / "Demo.MAP", folder / "away");
  Main main(settings.Path(), &prompts, File());
  main.show();
  main.OfferLastGame();
  EXPECT_EQ(OpenDialogAt(main, true), "no map ");
  EXPECT_TRUE(prompts.Shown().at(0).ends_with("there is no such file"));
  EXPECT_FALSE(main.Session().IsLoaded());
}

TEST_F(ReopenTest, OpenDialogBeginsWithTheLastGameWhereNothingElseSaysWhere) {
  Main main(settings.Path(), &prompts, File());
  main.show();
  EXPECT_EQ(OpenDialogAt(main, false), "no map ");
  Main other(settings.Path(), &prompts, File());
  other.show();
  other.OfferLastGame();
  EXPECT_EQ(OpenDialogAt(other, false), "Demo.MAP 2450");
  EXPECT_EQ(prompts.Shown(), Texts());
}

}  // namespace
}  // namespace quorvane
