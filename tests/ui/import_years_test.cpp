#include "ui/import_years.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "formats/game_files.h"
#include "loading/report_finder.h"
#include "support/game_folder.h"
#include "support/scripted_prompts.h"
#include "support/window_driver.h"
#include "ui/import_table.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

class ImportYearsTest : public testing::Test {
 protected:
  ImportYearsTest() {
    for (const char* year : {"2450", "2451", "2452"}) Keep(year, {".P1", ".P3"});
    Keep("Backup", {".P1"});
    Keep("2453", {".P3"});
    folder.Write("2451/Demo.P3", "");
    dialog.show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return table.topLevelItemCount() == 5; }));
  }

  GameChoice Game() const {
    GameChoice game;
    ChooseMap(game, folder / "Demo.MAP");
    FindReportFiles(game, "", [] { return true; });
    return game;
  }
  void Keep(const std::string& name, std::initializer_list<const char*> endings) const {
    std::filesystem::create_directory(folder / name);
    for (const std::string ending : endings) {
      folder.Write(name + "/Demo" + ending, folder.Read("Demo" + ending));
    }
  }
  Result<void> Store(const GameSession& session) {
    stored += std::to_string(session.GameYear) + " " + session.MyRaceName + "\n";
    if (cancelBy) cancelBy();
    return fault.empty() ? Result<void>() : Failure{fault};
  }

  QString Text(int row, int column) const { return table.topLevelItem(row)->text(column); }
  bool IsTicked(int row) const { return table.topLevelItem(row)->checkState(0) == Qt::Checked; }
  void Tick(int row) {
    table.setCurrentItem(table.topLevelItem(row));
    driver.Press("ImportTable", Qt::Key_Space);
  }
  // The first digit opens the box.
  void BeginYear(int row, const QString& year) {
    table.setCurrentItem(table.topLevelItem(row));
    QTest::keyClicks(&table, year.left(1));
    QTest::keyClicks(table.findChild<QLineEdit*>("ImportYear"), year.mid(1));
  }
  void TypeYear(int row, const QString& year) {
    BeginYear(row, year);
    driver.Press("ImportYear", Qt::Key_Return);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  GameFolder folder;
  ScriptedPrompts prompts;
  std::string stored;
  std::string fault;
  std::function<void()> cancelBy;
  ImportYears dialog{Game(),  "Humanoid",
                     {2450},  [this](const GameSession& session) { return Store(session); },
                     prompts, nullptr};
  WindowDriver driver{dialog};
  ImportTable& table = driver.Find<ImportTable>("ImportTable");
};

TEST_F(ImportYearsTest, TicksWhatIsNewAndWholeAndHasAYear) {
  const char* const rows[] = {"2450/2450/folder name/2 reports/already kept/out",
                              "2451/2451/folder name/2 reports//in",
                              "2452/2452/folder name/2 reports//in",
                              "2453/2453/folder name/1 report, yours is missing//out",
                              "Backup//not told: type it/1 report//out"};
  for (int row = 0; row < 5; ++row) {
    QString text;
    for (int column = 0; column < 5; ++column) text += Text(row, column) + "/";
    EXPECT_EQ(ToText(text + (IsTicked(row) ? "in" : "out")), rows[row]);
  }
  EXPECT_EQ(driver.Text("ImportHint"), "2 years will be read");
  Tick(4);
  EXPECT_FALSE(IsTicked(4)) << "it has no year";
  TypeYear(4, "23");
  EXPECT_EQ(Text(4, 4), "A year is a number from 2400 to 9999");
  TypeYear(4, "2452");
  EXPECT_TRUE(IsTicked(4) && dialog.isVisible());
  EXPECT_EQ(Text(4, 2) + Text(4, 4), "typed");
  EXPECT_EQ(driver.Text("ImportHint"), "2452 is ticked twice: leave one of them out");
  EXPECT_FALSE(driver.IsEnabled("ImportStart"));
  Tick(2);
  Tick(0);
  EXPECT_EQ(driver.Text("ImportHint"), "3 years will be read; 1 replaces what is kept");
  for (const int row : {0, 1, 4}) Tick(row);
  EXPECT_EQ(driver.Text("ImportHint"), "Tick the years that are to be read");
  EXPECT_FALSE(driver.IsEnabled("ImportStart"));
  BeginYear(3, "24");  // and the dialog goes
}

TEST_F(ImportYearsTest, ImportsWhatIsTickedAndTellsWhatFailed) {
  Tick(3);
  BeginYear(4, "2449");
  dialog.ImportStart->click();  // as Alt+I does, with the box still open
  EXPECT_EQ(stored, "2452 Humanoid\n2453 \n2449 Humanoid\n");
  EXPECT_EQ(driver.Text("ImportHint"), "3 of 4 years imported, 1 failed");
  EXPECT_EQ(Text(1, 4).left(7), "Demo.P3") << "the folder stands in the tooltip";
  EXPECT_TRUE(table.topLevelItem(1)->toolTip(0).remove('\n').contains(Text(1, 4)));
  EXPECT_EQ(Text(2, 4), "imported");
  EXPECT_TRUE(IsTicked(1) && !IsTicked(2));
  EXPECT_EQ(table.currentItem(), table.topLevelItem(1)) << "in sight";
  folder.Write("2451/Demo.P3", folder.Read("Demo.P3"));
  fault = "The disk is full";
  driver.Click("ImportStart");
  EXPECT_EQ(Text(1, 4), "The disk is full");
  fault.clear();
  driver.Click("ImportStart");
  EXPECT_EQ(driver.Text("ImportHint"), "1 year imported");
  EXPECT_FALSE(driver.IsVisible("ImportProgress") || driver.IsEnabled("ImportStart"));
}

TEST_F(ImportYearsTest, CancelKeepsWhatWasStoredBefore) {
  folder.Write("2451/Demo.P3", folder.Read("Demo.P3"));
  const std::function<void()> ways[] = {
      [this] { driver.Click("ImportCancel"); },
      [this] { driver.Press("ImportCancel", Qt::Key_Escape); },
      [this] {
        EXPECT_FALSE(dialog.close() || driver.IsEnabled("ImportClose"));
        QTest::keyClicks(&table, " 2");
        EXPECT_EQ(table.findChild<QLineEdit*>("ImportYear"), nullptr) << "the rows are at work";
      }};
  for (const auto& way : ways) {
    cancelBy = way;
    if (!IsTicked(1)) Tick(1);
    EXPECT_TRUE(dialog.isVisible());
    driver.Click("ImportStart");
    EXPECT_EQ(std::exchange(stored, ""), "2451 Humanoid\n");
    EXPECT_EQ(driver.Text("ImportHint"), "1 of 2 years imported");
    EXPECT_EQ(Text(1, 4) + Text(2, 1), "imported2452");
  }
  EXPECT_FALSE(dialog.isVisible()) << "who closes it meanwhile means it";
}

TEST_F(ImportYearsTest, GoesToTheFolderThatIsTyped) {
  driver.Type("ImportFolder", "Backup").Press("ImportFolder", Qt::Key_Return);
  EXPECT_EQ(table.topLevelItemCount(), 1);
  driver.Type("ImportFolder", "gone").Press("ImportFolder", Qt::Key_Return);
  EXPECT_EQ(prompts.Shown(), Texts{"The folder gone cannot be opened."});
  std::filesystem::remove(folder / "Backup/Demo.P1");
  driver.Type("ImportFolder", ".").Press("ImportFolder", Qt::Key_Return);
  EXPECT_EQ(driver.Text("ImportHint"), "There are no old reports of Demo in this folder");
}

}  // namespace
}  // namespace quorvane
