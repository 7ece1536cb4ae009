#include "screens/open_checks.h"

#include <gtest/gtest.h>

#include <utility>

#include "formats/game_files.h"
#include "loading/report_finder.h"
#include "support/temp_folder.h"

namespace quorvane {
namespace {

class OpenDialogRules : public testing::Test {
 protected:
  void Choose(std::initializer_list<const char*> reports) {
    folder.Write("Demo.MAP", "");
    for (const char* report : reports) folder.Write(report, "x");
    ChooseMap(choice, folder / "Demo.MAP");
  }
  bool Find(bool answer = true) {
    return FindReportFiles(choice, "2450", [&] {
      ++questions;
      return answer;
    });
  }

  TempFolder folder;
  GameChoice choice;
  int questions = 0;
};

TEST_F(OpenDialogRules, FindNewReportsInAnyLetterCaseAndTheFirstIsTheUsersRace) {
  Choose({"demo.p3", "Demo.P12", "Demo.P17", "Other.P1"});
  ASSERT_TRUE(Find());
  EXPECT_EQ(choice.MyRaceRow, 3);
  EXPECT_EQ(choice.ReportFiles[3].Path, folder / "demo.p3");
  EXPECT_EQ(choice.ReportFiles[12].Included, "1");
  EXPECT_EQ(questions, 0);
  EXPECT_EQ(choice.RaceColourFilePath, folder / "Demo.QVC");
}

TEST_F(OpenDialogRules, AskOnlyWhenBothStylesAreThere) {
  Choose({"Demo.PLA"});
  ASSERT_TRUE(Find());
  EXPECT_EQ(questions, 0);
  EXPECT_EQ(choice.ReportFiles[1].Year, "2450");
  folder.Write("Demo.P2", "x");
  for (const bool isNewWanted : {false, true}) {
    ASSERT_TRUE(Find(isNewWanted));
    EXPECT_EQ(choice.ReportStyle, isNewWanted ? kNewReportStyle : kOldReportStyle);
    EXPECT_EQ(choice.MyRaceRow, isNewWanted ? 2 : 1);
    EXPECT_EQ(choice.ReportFiles[1].Path.empty(), isNewWanted);
  }
  EXPECT_EQ(questions, 2);
}

TEST_F(OpenDialogRules, ReportTheFirstProblemInReadingOrderAndStoreWhatHasNone) {
  Choose({"Demo.P1", "Demo.P3"});
  ASSERT_TRUE(Find());
  OpenInput input{.Soi = "", .GameYear = "", .Years = {}};
  input.Years[9] = "2449";  // in a row that is not shown
  ReportFileSlot& report = choice.ReportFiles[3];
  const auto path = std::exchange(report.Path, "gone");
  choice.ReportFiles[1].Included = " 0";
  const auto expect = [&](OpenProblem problem) {
    EXPECT_EQ(AcceptOpenInput(choice, input), problem) << problem.Message;
  };
  // All is wrong; each step puts right what the problem before it says.
  for (const char* soi : {"abc", "49", "49.9"}) {
    input.Soi = soi;
    expect({"Minimum SOI must be 50ly", OpenRemedy::UseSmallestSoi});
  }
  input.Soi = "501";
  expect({"Maximum SOI must be 500ly", OpenRemedy::UseLargestSoi});
  input.Soi = "500";
  expect({"Some files have been deleted/renamed. Try again", OpenRemedy::FindReportsAgain});
  report.Path = path;
  expect({"You have not included the datafile you have selected as your race",
          OpenRemedy::FindReportsAgain});
  choice.MyRaceRow = 0;
  report.Included = " 0";
  expect({"No planet files selected"});
  report.Included = "1";
  expect({.Message = "You have entered Years for player files but not for the Game", .YearRow = 0});
  for (const auto& [gameYear, row] : {std::pair("2448", 9), std::pair("-1", 0)}) {
    input.GameYear = gameYear;
    expect(
        {.Message = "One or more game files has a Year higher then the Game Year", .YearRow = row});
  }
  input.GameYear = " 2449";
  input.Years[3] = "2448";
  input.Soi = "99.5";
  expect({});
  EXPECT_EQ(choice.ReportFiles[1].Year, " 2449") << "it has none of its own";
  EXPECT_EQ(choice.ReportFiles[3].Year, "2448");
  EXPECT_EQ(choice.GameYear, 2449);
  EXPECT_EQ(choice.SoiSetting, 100);
}

TEST_F(OpenDialogRules, RememberYearsAndRaceThroughTheirFiles) {
  Choose({"Demo.P1", "Demo.P3"});
  RowYears years;
  years[1] = "2450";
  years[3] = "2448, perhaps";
  ASSERT_TRUE(SaveYearsFile(choice.YearsFilePath, years));
  EXPECT_EQ(folder.Read("Demo.YRS").substr(0, 14), "\"2450\"\r\n\"\"\r\n\"2");
  EXPECT_EQ(LoadYearsFile(choice.YearsFilePath), years);
  ASSERT_TRUE(SaveRememberedRace(choice.RememberedRaceFilePath, 3));
  EXPECT_EQ(folder.Read("Demo.QVR"), "3\r\n");
  EXPECT_EQ(LoadRememberedRace(choice.RememberedRaceFilePath), 3);
  for (const char* damaged : {"", "17", "-1", "x"}) {
    folder.Write("Demo.QVR", damaged);
    EXPECT_EQ(LoadRememberedRace(choice.RememberedRaceFilePath), std::nullopt) << damaged;
  }
}

}  // namespace
}  // namespace quorvane
