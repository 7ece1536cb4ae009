#include "screens/report_texts.h"

#include <gtest/gtest.h>

#include <ctime>

#include "support/game_builder.h"

namespace quorvane {
namespace {

using Rows = std::vector<std::string>;

Rows TextsOf(const std::vector<ReportRow>& rows) {
  Rows texts;
  for (const ReportRow& row : rows) {
    texts.push_back(std::to_string(row.Row) + (row.IsTicked ? "x" : "") + (row.IsOwn ? "!" : ""));
    for (const std::string& text : {row.File, row.Race, row.Date, row.Year, row.Planets,
                                    row.OnlyHere, row.AverageAge, row.Warning}) {
      texts.back() += "|" + text;
    }
  }
  return texts;
}

TEST(DescribeReports, TellsOfEachReportThenOfThePlayersWithoutOne) {
  const GameSession session =
      GameBuilder().Player("Drask").Player("Humanoid").Player("Orrin").Build();
  GameChoice next;
  next.MyRaceRow = 3;
  next.GameYear = 2451;
  next.ReportFiles[2] = {"folder/a.P2", "0", "2449"};
  next.ReportFiles[3] = {"folder/a.P3", "0", ""};
  next.ReportFiles[9] = {"folder/a.P9", " 1", "2452"};
  next.ReportFiles[11] = {"folder/a.P11", "1", "2440"};
  ReportSurveys surveys;
  surveys[2] = {true, "", "Humanoid", 12, 1, 2.04};
  surveys[3] = {true, "", "Orrin", 3, 0, 0};
  surveys[9] = {true, "", "", 0, 0, std::nullopt};
  std::tm day = {};
  day.tm_year = 126;
  day.tm_mon = 10;
  day.tm_mday = 23;
  day.tm_hour = 9;
  day.tm_min = 5;
  day.tm_isdst = -1;
  std::vector<GameFileStamp> stamps(3);
  stamps[0] = {.Kind = GameFileKind::OldReport, .Name = "a.PLA", .Time = std::mktime(&day) * 1000L};
  stamps[1] = {.Kind = GameFileKind::Turn, .Row = 3, .Name = "a.M3"};
  stamps[2] = stamps[0];
  stamps[2].Kind = GameFileKind::Report;
  stamps[2].Row = 3;

  Rows expected = {"2|a.P2|Humanoid||2449|12|1|2.0|Of 2449, the game is in 2451",
                   "3x!|a.P3|Orrin|2026-11-23 09:05||3|0|0.0|",
                   "9x|a.P9|||2452|0|0||Of 2452, the game is in 2451",
                   "11x|a.P11|||2440||||Of 2440, the game is in 2451"};
  EXPECT_EQ(TextsOf(DescribeReports(session, next, surveys, stamps)), expected)
      << "row 11 is not surveyed yet and may be anybody's";

  surveys[11] = {true, "there is no such file", "", 0, 0, std::nullopt};
  expected[3] = "11x|a.P11|||2440||||Cannot be read: there is no such file";
  expected.emplace_back("0||Drask||||||No report");
  EXPECT_EQ(TextsOf(DescribeReports(session, next, surveys, stamps)), expected);

  GameChoice old = {.ReportStyle = kOldReportStyle, .MyRaceRow = 1};
  old.ReportFiles[1] = {"folder/a.PLA", "1", "2449"};
  surveys[1] = {true, "", "", 7, 7, 10};
  EXPECT_EQ(TextsOf(DescribeReports(session, old, surveys, stamps)),
            Rows{"1x!|a.PLA||2026-11-23 09:05|2449|7|7|10.0|"})
      << "one report stands for all, and no year is known that it could lag behind";
}

}  // namespace
}  // namespace quorvane
