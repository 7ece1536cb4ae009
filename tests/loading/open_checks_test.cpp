#include "loading/open_checks.h"

#include <gtest/gtest.h>

#include <functional>

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
  EXPECT_EQ(choice.ReportStyle, kNewReportStyle);
  EXPECT_EQ(choice.MyRaceRow, 3);
  EXPECT_EQ(choice.ReportFiles[3].Path, folder / "demo.p3");
  EXPECT_EQ(choice.ReportFiles[12].Included, "1");
  EXPECT_TRUE(choice.ReportFiles[1].Path.empty());
  EXPECT_EQ(questions, 0);
  EXPECT_EQ(choice.RaceColourFilePath, folder / "Demo.QVC");
}

TEST_F(OpenDialogRules, AskOnlyWhenBothStylesAreThere) {
  Choose({"Demo.PLA"});
  ASSERT_TRUE(Find());
  EXPECT_EQ(questions, 0);
  EXPECT_EQ(choice.ReportStyle, kOldReportStyle);
  EXPECT_EQ(choice.ReportFiles[1].Year, "2450");
  folder.Write("Demo.P2", "x");
  ASSERT_TRUE(Find(false));
  EXPECT_EQ(choice.ReportStyle, kOldReportStyle);
  EXPECT_EQ(choice.MyRaceRow, 1);
  ASSERT_TRUE(Find(true));
  EXPECT_EQ(choice.ReportStyle, kNewReportStyle);
  EXPECT_EQ(choice.MyRaceRow, 2);
  EXPECT_TRUE(choice.ReportFiles[1].Path.empty());
  EXPECT_EQ(questions, 2);
}

struct Case {
  const char* What;
  std::function<void(GameChoice&, OpenInput&)> Change;
  OpenProblem Problem;
};

TEST_F(OpenDialogRules, ReportTheFirstProblemInReadingOrder) {
  Choose({"Demo.P1", "Demo.P3"});
  ASSERT_TRUE(Find());
  const Case cases[] = {
      {"49",
       [](auto&, auto& in) { in.Soi = "49"; },
       {"Minimum SOI must be 50ly", OpenRemedy::UseSmallestSoi}},
      {"letters",
       [](auto&, auto& in) { in.Soi = "abc"; },
       {"Minimum SOI must be 50ly", OpenRemedy::UseSmallestSoi}},
      {"501",
       [](auto&, auto& in) { in.Soi = "501"; },
       {"Maximum SOI must be 500ly", OpenRemedy::UseLargestSoi}},
      {"gone before not included",
       [](auto& changed, auto&) {
         changed.ReportFiles[3].Path = "gone";
         changed.ReportFiles[1].Included = " 0";
       },
       {"Some files have been deleted/renamed. Try again", OpenRemedy::FindReportsAgain}},
      {"own race unticked",
       [](auto& changed, auto&) { changed.ReportFiles[1].Included = " 0"; },
       {"You have not included the datafile you have selected as your race",
        OpenRemedy::FindReportsAgain}},
      {"nothing ticked",
       [](auto& changed, auto&) {
         changed.MyRaceRow = 0;
         changed.ReportFiles[1].Included = changed.ReportFiles[3].Included = " 0";
       },
       {"No planet files selected"}},
      {"no game year",
       [](auto&, auto& in) {
         in.Years[3] = "2449";
         in.GameYear = "";
       },
       {"You have entered Years for player files but not for the Game"}},
      {"hidden rows count",
       [](auto&, auto& in) { in.Years[9] = "2451"; },
       {"One or more game files has a Year higher then the Game Year"}},
      {"good", [](auto&, auto&) {}, {}}};
  for (const Case& example : cases) {
    GameChoice changed = choice;
    OpenInput input{.Soi = "500", .GameYear = "2450", .Years = {}};
    example.Change(changed, input);
    EXPECT_EQ(AcceptOpenInput(changed, input), example.Problem) << example.What;
  }
}

TEST_F(OpenDialogRules, GiveReportsWithoutAYearTheGameYear) {
  Choose({"Demo.P1", "Demo.P3"});
  ASSERT_TRUE(Find());
  OpenInput input{.Soi = "99.5", .GameYear = " 2450", .Years = {}};
  input.Years[3] = "2448";
  ASSERT_EQ(AcceptOpenInput(choice, input), OpenProblem());
  EXPECT_EQ(choice.ReportFiles[1].Year, " 2450");
  EXPECT_EQ(choice.ReportFiles[3].Year, "2448");
  EXPECT_EQ(choice.GameYear, 2450);
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
