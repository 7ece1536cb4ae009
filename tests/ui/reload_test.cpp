#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <atomic>
#include <filesystem>
#include <thread>

#include "formats/dialog_files.h"
#include "support/write_faults.h"
#include "ui/main_window_fixture.h"
#include "ui/reload_bar.h"
#include "ui/reports_dock.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class ReloadTest : public LoadedGameTest {
 protected:
  ReloadTest() { Hasten(window); }

  static void Hasten(Main& main) { main.Watcher().SetLook(StampGameFiles, 40ms); }
  // A year later, Alpha has other inhabitants.
  void WriteNewReport(const char* file = "Demo.P1") {
    std::string report = folder.Read("Demo.P1");
    report.replace(report.find("900000"), 6, "950000");
    folder.Write(file, report);
  }
  void WriteTurn(int year) { folder.Write("Demo.m1", TurnBlock(year) + "what is encrypted"); }
  bool IsNews(const QString& news) {
    return QTest::qWaitFor([&] { return window.Bar->isVisible() && News().contains(news); }, 5000);
  }
  QString News() { return driver.Text("ReloadNews"); }
  int Year() { return window.Session().GameYear; }
};

TEST_F(ReloadTest, IsOneClickWhenANewTurnIsThere) {
  WriteTurn(2451);
  WriteNewReport();
  ASSERT_TRUE(IsNews("Demo.P1 is new (") && IsNews("Demo.m1 is of year 2451"))
      << News().toStdString();
  EXPECT_EQ(Year(), 2450) << "nothing is loaded by itself";
  driver.ClickAt("Universe", At({1050, 1300})).Click("ReloadNow");
  EXPECT_EQ(Year(), 2451);
  EXPECT_EQ(window.Session().Planet(1).Population(), 950000);
  EXPECT_EQ(driver.Text("Population"), "950000");
  EXPECT_FALSE(window.Bar->isVisible());
  EXPECT_EQ(prompts.Shown(), Texts());
}

TEST_F(ReloadTest, AsksForAYearThatNothingTellsAndOffersItForOtherReports) {
  WriteNewReport();
  folder.Write("Demo.P3", folder.Read("Demo.P3") + "\r\n");
  Activate();
  ASSERT_TRUE(IsNews("Demo.P1") && IsNews("Demo.P3"));
  driver.Click("ReloadNow");
  EXPECT_EQ(Year(), 2450);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "ReloadYear(1)");
  driver.Type("ReloadYear(1)", "2452").Type("ReloadYear(3)", "2451");
  driver.Press("ReloadYear(3)", Qt::Key_Return);
  EXPECT_EQ(Year(), 2452);
  EXPECT_EQ(window.Session().ReportFiles[1].Year, "2452");
  EXPECT_EQ(window.Session().ReportFiles[3].Year, "2451");
  EXPECT_EQ(window.Session().Planet(3)[PlanetField::AgeText].Text(), "  1 years old");
  EXPECT_FALSE(window.Bar->isVisible());
}

TEST_F(ReloadTest, CanBePutOffAndComesBackWithTheNextChange) {
  WriteTurn(2451);
  ASSERT_TRUE(IsNews("2451"));
  driver.Press("ReloadLater", Qt::Key_Escape);
  EXPECT_FALSE(window.Bar->isVisible());
  WriteNewReport();
  ASSERT_TRUE(IsNews("Demo.P1"));
  driver.Click("ReloadLater").Choose("GameReload");
  EXPECT_EQ(Year(), 2451) << "the key always reloads";
}

TEST_F(ReloadTest, HappensByItselfOnlyWhereThatIsWanted) {
  driver.Choose("GameReloadByItself");
  WriteTurn(2451);
  ASSERT_TRUE(IsNews("2451")) << "a turn file alone brings nothing to show";
  WriteNewReport();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Year() == 2451; }, 5000));
  EXPECT_FALSE(window.Bar->isVisible());
}

TEST_F(ReloadTest, ThatFailsLeavesEverything) {
  driver.Click("OvButt(6)");
  const QImage before = Map();
  fs::rename(folder / "Demo.MAP", folder / "away");
  ASSERT_TRUE(IsNews("Demo.MAP is gone"));
  driver.Click("ReloadNow");
  ASSERT_EQ(prompts.Shown().size(), 1U);
  EXPECT_TRUE(Map() == before && driver.IsDown("OvButt(6)"));
  fs::rename(folder / "away", folder / "Demo.MAP");
  fs::remove(folder / "Demo.P3");
  ASSERT_TRUE(IsNews("Demo.P3 is gone"));
  driver.Choose("GameReload");
  EXPECT_TRUE(
      prompts.Shown().at(0).ends_with("the report is gone, so the game was not loaded again"));
  EXPECT_EQ(Year(), 2450);
  // Half of a report tells what it tells; the other half is news when it is there.
  const std::string whole = folder.Read("Demo.P1");
  folder.Write("Demo.P1", whole.substr(0, whole.size() / 2));
  folder.Write("Demo.P3", whole);
  WriteTurn(2451);
  driver.Choose("GameReload");
  EXPECT_EQ(Year(), 2451);
  folder.Write("Demo.P1", whole);
  ASSERT_TRUE(IsNews("Demo.P1"));
  driver.Click("ReloadNow");
  EXPECT_EQ(window.Session().Planet(2).Population(), 250000);
}

TEST_F(ReloadTest, DoesNotWaitForASlowShare) {
  std::atomic<bool> isReleased = false;
  std::atomic<int> looks = 0;
  window.Watcher().SetLook(
      [&](const fs::path& map, const GameWatcher::IsStopped& isStopped) {
        ++looks;
        while (!isReleased && !isStopped()) std::this_thread::sleep_for(1ms);
        return StampGameFiles(map);
      },
      40ms);
  WriteTurn(2451);
  WriteNewReport();
  window.Watcher().LookAgain();
  ASSERT_TRUE(QTest::qWaitFor([&] { return looks > 0; }));
  driver.Click("OvButt(6)").Choose("GameReload");
  EXPECT_TRUE(driver.IsDown("OvButt(6)"));
  EXPECT_EQ(Year(), 2450) << "nothing was known of a new year yet";
  isReleased = true;
  ASSERT_TRUE(IsNews("2451") || QTest::qWaitFor([&] { return Year() == 2451; }));
}

TEST_F(ReloadTest, LooksSeldomHoweverManyFilesChange) {
  std::atomic<int> looks = 0;
  window.Watcher().SetLook(
      [&](const fs::path& map, const GameWatcher::IsStopped& isStopped) {
        ++looks;
        return StampGameFiles(map, isStopped);
      },
      2000ms);
  QElapsedTimer time;
  time.start();
  for (int file = 0; file < 1000; ++file) {
    folder.Write("other" + std::to_string(file % 100), std::to_string(file));
    if (file % 10 == 0) QTest::qWait(1);
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return looks > 0; }));
  EXPECT_LE(looks, 2 + time.elapsed() / 500) << "twice a second, however slow this machine is";
  EXPECT_FALSE(window.Bar->isVisible()) << "they are no files of the game";
}

TEST_F(ReloadTest, TakesTicksAndYearsOfTheReportsDock) {
  driver.Choose("GameReports");
  auto& list = driver.Find<QAbstractItemView>("ReportsList");
  const QAbstractItemModel& rows = *list.model();
  ASSERT_TRUE(QTest::qWaitFor([&] { return rows.rowCount() == 2; }));
  emit window.ReportsDock->YearTyped(3, "2447");
  EXPECT_EQ(LoadYearsFile(folder / "Demo.YRS")->at(3), "2447");
  driver.Choose("GameReload");
  EXPECT_EQ(window.Session().Planet(3)[PlanetField::AgeText].Text(), "  3 years old");
  emit window.ReportsDock->Ticked(3, false);
  driver.Choose("GameReload");
  EXPECT_EQ(window.Session().Planet(3)[PlanetField::AgeText].Text(), "  5 years old")
      << "as the own report has it";
  fs::permissions(folder.Path(), fs::perms(0555));
  {
    const OrdinaryUser user;
    emit window.ReportsDock->YearTyped(3, "2448");
  }
  EXPECT_EQ(prompts.Shown().size(), 1U) << "the years file cannot be written";
  fs::permissions(folder.Path(), fs::perms(0755));
}

class UnsavedTest : public ReloadTest {
 protected:
  void ChangeAll() {
    driver.Choose("GameColoursForEveryEye");
    OpenTools();
    driver.Find<QPlainTextEdit>("PlotBox").appendPlainText("L,1,2,3,4,5");
    InNextDialog([](QWidget& dialog) {
      WindowDriver(dialog).Find<QPlainTextEdit>("RaceNotes").setPlainText("beware");
      dialog.close();
    });
    driver.Choose("mnuGrid2");
  }
  bool AreFilesThere() {
    return fs::exists(folder / "Demo.QVC") && fs::exists(folder / "Demo.QVL") &&
           fs::exists(folder / "Demo.QVD");
  }
  const std::string question =
      "The race colours, drawings and race information of Demo have been changed and not saved. "
      "Save them?";
};

TEST_F(UnsavedTest, ChangesAreAskedAboutBeforeTheyWouldBeLost) {
  ChangeAll();
  prompts.AnswerSave(SaveAnswer::Cancel);
  for (const char* command : {"GameReload", "mnuExit"}) {
    driver.Choose(command);
    EXPECT_EQ(prompts.Shown(), Texts{question}) << command;
    EXPECT_TRUE(window.isVisible() && !AreFilesThere());
  }
  Load();
  EXPECT_EQ(prompts.Shown(), Texts{question});
  prompts.AnswerSave(SaveAnswer::Save);
  WriteTurn(2451);
  WriteNewReport();
  driver.Choose("GameReload");
  EXPECT_EQ(prompts.Shown(), Texts{question});
  EXPECT_TRUE(Year() == 2451 && AreFilesThere());
  driver.Choose("GameReload");
  EXPECT_EQ(prompts.Shown(), Texts()) << "all is saved";
  driver.Choose("GameDefaultColours");
  prompts.AnswerSave(SaveAnswer::Discard);
  driver.Choose("GameReload");
  EXPECT_EQ(prompts.Shown(), Texts{"The race colours of Demo have been changed and not saved. "
                                   "Save them?"});
  EXPECT_NE(window.Session().RaceColours, kDefaultRaceColours) << "as they were saved";
}

TEST_F(UnsavedTest, WhatCannotBeSavedStays) {
  driver.Choose("GameColoursForEveryEye");
  prompts.AnswerSave(SaveAnswer::Save);
  fs::create_directory(folder / "Demo.QVC");
  window.close();
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(prompts.Shown().size(), 2U) << "the question, and why not";
}

}  // namespace
}  // namespace quorvane
